<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="manufacturer">
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message id="deviceModel">
        <source>Device model</source>
        <translation>Gerätetyp</translation>
    </message>
    <message id="deviceId">
        <source>Device identifier</source>
        <translation>Gerätekennung</translation>
    </message>
    <message id="serialNumber">
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message id="hardwareRevision">
        <source>Hardware revision</source>
        <translation>Hardware-Revision</translation>
    </message>
    <message id="softwareRevision">
        <source>Software revision</source>
        <translation>Software-Revision</translation>
    </message>
    <message id="tag">
        <source>Tag</source>
        <translation>Messstelle</translation>
    </message>
    <message id="longTag">
        <source>Long tag</source>
        <translation>Lange Messstellenbezeichnung</translation>
    </message>
    <message id="descriptor">
        <source>Descriptor</source>
        <translation>Beschreibung</translation>
    </message>
    <message id="message">
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message id="installationDate">
        <source>Installation date</source>
        <translation>Einbaudatum</translation>
    </message>
    <message id="finalAssemblyNumber">
        <source>Final assembly number</source>
        <translation>Endmontagenummer</translation>
    </message>
    <message id="pollingAddress">
        <source>Polling address</source>
        <translation>Abfrageadresse</translation>
    </message>
    <message id="valveType">
        <source>Valve type</source>
        <translation>Ventiltyp</translation>
    </message>
    <message id="actuatorType">
        <source>Actuator type</source>
        <translation>Antriebstyp</translation>
    </message>
    <message id="ratedTravel">
        <source>Rated travel</source>
        <translation>Nennhub</translation>
    </message>
    <message id="gearFactor">
        <source>Gear factor</source>
        <translation>Übersetzungsfaktor</translation>
    </message>
    <message id="travelLowLimit">
        <source>Travel limit, low</source>
        <translation>Hubbegrenzung unten</translation>
    </message>
    <message id="travelHighLimit">
        <source>Travel limit, high</source>
        <translation>Hubbegrenzung oben</translation>
    </message>
    <message id="openingTime">
        <source>Opening time</source>
        <translation>Öffnungszeit</translation>
    </message>
    <message id="closingTime">
        <source>Closing time</source>
        <translation>Schließzeit</translation>
    </message>
    <message id="supplyPressure">
        <source>Supply pressure</source>
        <translation>Zuluftdruck</translation>
    </message>
    <message id="supplyLowPressure">
        <source>Supply pressure limit, low</source>
        <translation>Zuluftdruckgrenze unten</translation>
    </message>
    <message id="supplyHighPressure">
        <source>Supply pressure limit, high</source>
        <translation>Zuluftdruckgrenze oben</translation>
    </message>
    <message id="actuatorPressure">
        <source>Actuator pressure</source>
        <translation>Antriebsdruck</translation>
    </message>
    <message id="ambientAbsolutePressure">
        <source>Ambient pressure</source>
        <translation>Umgebungsdruck</translation>
    </message>
    <message id="signalDirection">
        <source>Signal direction</source>
        <translation>Signalrichtung</translation>
    </message>
    <message id="signalLowCurrent">
        <source>Signal range, low</source>
        <translation>Signalbereich Anfang</translation>
    </message>
    <message id="signalHighCurrent">
        <source>Signal range, high</source>
        <translation>Signalbereich Ende</translation>
    </message>
    <message id="characteristic">
        <source>Characteristic</source>
        <translation>Kennlinie</translation>
    </message>
    <message id="curveInput_1">
        <source>Curve input 1</source>
        <translation>Kennlinie Eingang 1</translation>
    </message>
    <message id="curveOutput_1">
        <source>Curve output 1</source>
        <translation>Kennlinie Ausgang 1</translation>
    </message>
    <message id="curveInput_2">
        <source>Curve input 2</source>
        <translation>Kennlinie Eingang 2</translation>
    </message>
    <message id="curveOutput_2">
        <source>Curve output 2</source>
        <translation>Kennlinie Ausgang 2</translation>
    </message>
    <message id="filterTime">
        <source>Filter time</source>
        <translation>Filterzeit</translation>
    </message>
    <message id="tuningSet">
        <source>Tuning set</source>
        <translation>Reglereinstellung</translation>
    </message>
    <message id="proportionalGain">
        <source>Proportional gain</source>
        <translation>Proportionalverstärkung</translation>
    </message>
    <message id="integralTime">
        <source>Integral time</source>
        <translation>Nachstellzeit</translation>
    </message>
    <message id="derivativeTime">
        <source>Derivative time</source>
        <translation>Vorhaltezeit</translation>
    </message>
    <message id="travelDeadband">
        <source>Travel deadband</source>
        <translation>Hub-Totzone</translation>
    </message>
    <message id="alarmMask">
        <source>Active alarms</source>
        <translation>Aktive Alarme</translation>
    </message>
    <message id="alarmHighTravel">
        <source>Travel alarm, high</source>
        <translation>Hubalarm oben</translation>
    </message>
    <message id="alarmLowTravel">
        <source>Travel alarm, low</source>
        <translation>Hubalarm unten</translation>
    </message>
    <message id="alarmHighAction">
        <source>Action on high alarm</source>
        <translation>Aktion bei Alarm oben</translation>
    </message>
    <message id="alarmLowAction">
        <source>Action on low alarm</source>
        <translation>Aktion bei Alarm unten</translation>
    </message>
    <message id="alarmHighAction_2">
        <source>Action on second high alarm</source>
        <translation>Aktion bei zweitem Alarm oben</translation>
    </message>
    <message id="alarmHighTemperature">
        <source>Temperature alarm, high</source>
        <translation>Temperaturalarm oben</translation>
    </message>
    <message id="alarmLowTemperature">
        <source>Temperature alarm, low</source>
        <translation>Temperaturalarm unten</translation>
    </message>
    <message id="alarmLatchMode">
        <source>Alarm latching</source>
        <translation>Alarmspeicherung</translation>
    </message>
    <message id="burstMode">
        <source>Burst mode</source>
        <translation>Burst-Modus</translation>
    </message>
    <message id="burstCommand">
        <source>Burst command</source>
        <translation>Burst-Kommando</translation>
    </message>
    <message id="burstVariable_1">
        <source>Burst variable 1</source>
        <translation>Burst-Variable 1</translation>
    </message>
    <message id="burstVariable_2">
        <source>Burst variable 2</source>
        <translation>Burst-Variable 2</translation>
    </message>
    <message id="minimumBurstPeriod">
        <source>Burst period, minimum</source>
        <translation>Burst-Periode, minimal</translation>
    </message>
    <message id="maximumBurstPeriod">
        <source>Burst period, maximum</source>
        <translation>Burst-Periode, maximal</translation>
    </message>
    <message id="secondaryOutput">
        <source>Secondary output</source>
        <translation>Zweiter Ausgang</translation>
    </message>
    <message id="outputFailureCurrent">
        <source>Output current on failure</source>
        <translation>Ausgangsstrom bei Störung</translation>
    </message>
    <message id="writeProtectionMode">
        <source>Write protection</source>
        <translation>Schreibschutz</translation>
    </message>
    <message id="maintenanceDate">
        <source>Next maintenance</source>
        <translation>Nächste Wartung</translation>
    </message>
    <message id="dailyTestTime">
        <source>Time of the daily test</source>
        <translation>Uhrzeit des täglichen Tests</translation>
    </message>
    <message id="strokeTestInterval">
        <source>Interval of the stroke test</source>
        <translation>Intervall des Teilhubtests</translation>
    </message>
    <message id="deviceTemperature">
        <source>Device temperature</source>
        <translation>Gerätetemperatur</translation>
    </message>
    <message id="maximumTemperature">
        <source>Highest temperature</source>
        <translation>Höchste Temperatur</translation>
    </message>
    <message id="minimumTemperature">
        <source>Lowest temperature</source>
        <translation>Tiefste Temperatur</translation>
    </message>
    <message id="operatingTime">
        <source>Operating time</source>
        <translation>Betriebszeit</translation>
    </message>
    <message id="cycleCounter">
        <source>Valve cycles</source>
        <translation>Ventilzyklen</translation>
    </message>
    <message id="globeValve">
        <source>Globe valve</source>
        <translation>Hubventil</translation>
    </message>
    <message id="ballValve">
        <source>Ball valve</source>
        <translation>Kugelhahn</translation>
    </message>
    <message id="butterflyValve">
        <source>Butterfly valve</source>
        <translation>Absperrklappe</translation>
    </message>
    <message id="rotaryPlugValve">
        <source>Rotary plug valve</source>
        <translation>Drehkegelventil</translation>
    </message>
    <message id="singleActing">
        <source>Single acting</source>
        <translation>Einfachwirkend</translation>
    </message>
    <message id="doubleActing">
        <source>Double acting</source>
        <translation>Doppeltwirkend</translation>
    </message>
    <message id="gearDirect">
        <source>Direct</source>
        <translation>Direkt</translation>
    </message>
    <message id="gearDouble">
        <source>Double</source>
        <translation>Zweifach</translation>
    </message>
    <message id="gearFourfold">
        <source>Fourfold</source>
        <translation>Vierfach</translation>
    </message>
    <message id="signalOpens">
        <source>Rising signal opens</source>
        <translation>Steigendes Signal öffnet</translation>
    </message>
    <message id="signalCloses">
        <source>Rising signal closes</source>
        <translation>Steigendes Signal schließt</translation>
    </message>
    <message id="linear">
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message id="equalPercentage">
        <source>Equal percentage</source>
        <translation>Gleichprozentig</translation>
    </message>
    <message id="quickOpening">
        <source>Quick opening</source>
        <translation>Schnell öffnend</translation>
    </message>
    <message id="userCurve">
        <source>User-defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message id="tuningSlow">
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message id="tuningNormal">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="tuningFast">
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message id="tuningUser">
        <source>User-tuned</source>
        <translation>Benutzereinstellung</translation>
    </message>
    <message id="noAction">
        <source>No action</source>
        <translation>Keine Aktion</translation>
    </message>
    <message id="alarmOnly">
        <source>Alarm only</source>
        <translation>Nur Alarm</translation>
    </message>
    <message id="moveOpen">
        <source>Move open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="moveClosed">
        <source>Move closed</source>
        <translation>Schließen</translation>
    </message>
    <message id="holdPosition">
        <source>Hold position</source>
        <translation>Position halten</translation>
    </message>
    <message id="off">
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message id="on">
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message id="variableTravel">
        <source>Valve travel</source>
        <translation>Ventilhub</translation>
    </message>
    <message id="variableSetpoint">
        <source>Setpoint</source>
        <translation>Sollwert</translation>
    </message>
    <message id="variablePressure">
        <source>Actuator pressure</source>
        <translation>Antriebsdruck</translation>
    </message>
    <message id="variableTemperature">
        <source>Device temperature</source>
        <translation>Gerätetemperatur</translation>
    </message>
    <message id="commandPrimary">
        <source>1: primary variable</source>
        <translation>1: Primärvariable</translation>
    </message>
    <message id="commandCurrent">
        <source>2: current and percent</source>
        <translation>2: Strom und Prozent</translation>
    </message>
    <message id="commandDynamic">
        <source>3: dynamic variables</source>
        <translation>3: dynamische Variablen</translation>
    </message>
    <message id="commandStatus">
        <source>9: variables with status</source>
        <translation>9: Variablen mit Status</translation>
    </message>
    <message id="outputCurrent">
        <source>Current 4 to 20 mA</source>
        <translation>Strom 4 bis 20 mA</translation>
    </message>
    <message id="outputSwitch">
        <source>Limit switch</source>
        <translation>Grenzschalter</translation>
    </message>
    <message id="Not In Use">
        <source>Not In Use</source>
        <translation>Nicht in Gebrauch</translation>
    </message>
    <message id="maskTravel">
        <source>Travel</source>
        <translation>Hub</translation>
    </message>
    <message id="maskPressure">
        <source>Supply pressure</source>
        <translation>Zuluftdruck</translation>
    </message>
    <message id="maskTemperature">
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message id="maskSignal">
        <source>Input signal</source>
        <translation>Eingangssignal</translation>
    </message>
    <message id="maskFriction">
        <source>Friction</source>
        <translation>Reibung</translation>
    </message>
    <message id="identification">
        <source>Identification</source>
        <translation>Identifikation</translation>
    </message>
    <message id="diagnostics">
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message id="assembly">
        <source>Assembly</source>
        <translation>Aufbau</translation>
    </message>
    <message id="pressure">
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message id="signal">
        <source>Input signal</source>
        <translation>Eingangssignal</translation>
    </message>
    <message id="tuning">
        <source>Tuning</source>
        <translation>Regelung</translation>
    </message>
    <message id="alarms">
        <source>Alarms</source>
        <translation>Alarme</translation>
    </message>
    <message id="burst">
        <source>Burst</source>
        <translation>Burst</translation>
    </message>
    <message id="output">
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message id="maintenance">
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message id="absolutePressure">
        <source>Absolute pressure</source>
        <translation>Absolutdruck</translation>
    </message>
    <message id="temperature">
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message id="temperatureDifference">
        <source>Temperature difference</source>
        <translation>Temperaturdifferenz</translation>
    </message>
    <message id="travel">
        <source>Travel</source>
        <translation>Hub</translation>
    </message>
    <message id="length">
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message id="angle">
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message id="time">
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message id="frequency">
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message id="current">
        <source>Current</source>
        <translation>Strom</translation>
    </message>
    <message id="voltage">
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message id="resistance">
        <source>Resistance</source>
        <translation>Widerstand</translation>
    </message>
    <message id="flow">
        <source>Flow</source>
        <translation>Durchfluss</translation>
    </message>
    <message id="massFlow">
        <source>Mass flow</source>
        <translation>Massendurchfluss</translation>
    </message>
    <message id="volume">
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message id="weight">
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message id="density">
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message id="speed">
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message id="force">
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message id="torque">
        <source>Torque</source>
        <translation>Drehmoment</translation>
    </message>
    <message id="power">
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message id="changeConfirm">
        <source>Confirm changes</source>
        <translation>Änderungen bestätigen</translation>
    </message>
    <message id="parameter">
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message id="valueOld">
        <source>Old value</source>
        <translation>Alter Wert</translation>
    </message>
    <message id="valueNew">
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message id="showAllParameters">
        <source>Show also non-modified values</source>
        <translation>Auch unveränderte Werte zeigen</translation>
    </message>
    <message id="accept">
        <source>Accept</source>
        <translation>Übernehmen</translation>
    </message>
    <message id="download">
        <source>Download</source>
        <translation>Zum Gerät senden</translation>
    </message>
    <message id="unSelect">
        <source>Unselect</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message id="close">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="languageSelection">
        <source>Select language</source>
        <translation>Sprache wählen</translation>
    </message>
    <message id="statusClassificationSelection">
        <source>Select status classification</source>
        <translation>Statusklassifizierung wählen</translation>
    </message>
    <message id="statusSeverity">
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message id="statusNAMUR">
        <source>NAMUR</source>
        <translation>NAMUR</translation>
    </message>
    <message id="selectUnits">
        <source>Select units</source>
        <translation>Einheiten wählen</translation>
    </message>
    <message id="changeAllUnits">
        <source>Change all parameters into</source>
        <translation>Alle Parameter umstellen auf</translation>
    </message>
    <message id="siUnits">
        <source>SI units</source>
        <translation>SI-Einheiten</translation>
    </message>
    <message id="usUnits">
        <source>US units</source>
        <translation>US-Einheiten</translation>
    </message>
    <message id="ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="apply">
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message id="none">
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message id="yes">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="no">
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message id="Inappropriate input">
        <source>Inappropriate input</source>
        <translation>Unpassende Eingabe</translation>
    </message>
    <message id="missingItems">
        <source>The device does not have these parameters:</source>
        <translation>Diese Parameter sind im Gerät nicht vorhanden:</translation>
    </message>
    <message id="commandIsNotImplemented">
        <source>The device does not know this command.</source>
        <translation>Das Gerät kennt dieses Kommando nicht.</translation>
    </message>
    <message id="communicationError">
        <source>The device does not answer. Check the connection and read again.</source>
        <translation>Das Gerät antwortet nicht. Prüfen Sie die Verbindung und lesen Sie erneut.</translation>
    </message>
    <message id="errCommunicationError">
        <source>Communication with the device failed. Check the connection and try again.</source>
        <translation>Die Kommunikation mit dem Gerät ist fehlgeschlagen. Prüfen Sie die Verbindung und versuchen Sie es erneut.</translation>
    </message>
    <message id="hartCmdErrSuspiciousCalibration">
        <source>The device refused: the calibration looks wrong. Check the travel limits and calibrate again.</source>
        <translation>Das Gerät hat abgelehnt: Die Kalibrierung ist unplausibel. Prüfen Sie die Hubgrenzen und kalibrieren Sie erneut.</translation>
    </message>
    <message id="hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed">
        <source>The device refused: the recipe is not calibrated, or the pulp type is not allowed.</source>
        <translation>Das Gerät hat abgelehnt: Das Rezept ist nicht kalibriert oder die Stoffart ist nicht zulässig.</translation>
    </message>
    <message id="hartCmdErrNoDataAvailable">
        <source>The device has no data of this kind yet.</source>
        <translation>Im Gerät liegen dazu noch keine Daten vor.</translation>
    </message>
    <message id="hartCmdErrInvalidSelection">
        <source>The device did not take these values. Enter other values:</source>
        <translation>Das Gerät hat diese Werte nicht angenommen. Geben Sie andere Werte ein:</translation>
    </message>
    <message id="hartCmdErrAccessRestricted">
        <source>These parameters can only be read:</source>
        <translation>Diese Parameter können nur gelesen werden:</translation>
    </message>
    <message id="errTestDataNoDataError">
        <source>There is no test data.</source>
        <translation>Es liegen keine Testdaten vor.</translation>
    </message>
    <message id="noDialogs">
        <source>The system does not allow dialogs here.</source>
        <translation>Das System lässt hier keine Dialoge zu.</translation>
    </message>
    <message id="noFileSelectionDialog">
        <source>Files cannot be chosen here. The file is %1</source>
        <translation>Hier können keine Dateien gewählt werden. Die Datei ist %1</translation>
    </message>
    <message id="reading">
        <source>Reading from the device</source>
        <translation>Lesen aus dem Gerät</translation>
    </message>
    <message id="writing">
        <source>Writing to the device</source>
        <translation>Schreiben in das Gerät</translation>
    </message>
    <message id="pleaseCheckTheValues">
        <source>Please check the values.</source>
        <translation>Bitte prüfen Sie die Werte.</translation>
    </message>
    <message id="configuration">
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message id="infoCharacteristic">
        <source>How travel follows the input signal</source>
        <translation>Wie der Hub dem Eingangssignal folgt</translation>
    </message>
    <message id="infoCharacteristic_linear">
        <source>Travel is proportional to the signal.</source>
        <translation>Der Hub ist proportional zum Signal.</translation>
    </message>
    <message id="infoCharacteristic_equalPercentage">
        <source>Equal steps of the signal change the flow by equal percentages.</source>
        <translation>Gleiche Signalschritte ändern den Durchfluss um gleiche Prozentsätze.</translation>
    </message>
    <message id="infoCharacteristic_quickOpening">
        <source>The valve opens fast at the start of the signal range.</source>
        <translation>Das Ventil öffnet am Anfang des Signalbereichs schnell.</translation>
    </message>
    <message id="infoCharacteristic_userCurve">
        <source>Travel follows the points of the curve.</source>
        <translation>Der Hub folgt den Punkten der Kennlinie.</translation>
    </message>
    <message id="shell_title">
        <source>Quill – %1</source>
        <translation>Quill – %1</translation>
    </message>
    <message id="shell_titleModified">
        <source>Quill – %1 (not saved)</source>
        <translation>Quill – %1 (nicht gespeichert)</translation>
    </message>
    <message id="shell_sampleName">
        <source>sample VX4400H</source>
        <translation>Beispiel VX4400H</translation>
    </message>
    <message id="shell_menuFile">
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="shell_menuDevice">
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message id="shell_menuView">
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="shell_menuHelp">
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="shell_open">
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message id="shell_openTip">
        <source>Opens a datafile</source>
        <translation>Öffnet eine Gerätedatei</translation>
    </message>
    <message id="shell_openSample">
        <source>Open the &amp;sample</source>
        <translation>&amp;Beispiel öffnen</translation>
    </message>
    <message id="shell_openSampleTip">
        <source>Opens the sample datafile of the VX4400H</source>
        <translation>Öffnet die Beispieldatei des VX4400H</translation>
    </message>
    <message id="shell_save">
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message id="shell_saveTip">
        <source>Saves the datafile</source>
        <translation>Speichert die Gerätedatei</translation>
    </message>
    <message id="shell_saveAs">
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message id="shell_quit">
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="shell_datafiles">
        <source>Datafiles</source>
        <translation>Gerätedateien</translation>
    </message>
    <message id="shell_allFiles">
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message id="shell_online">
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message id="shell_offline">
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message id="shell_connect">
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message id="shell_connectTip">
        <source>Connects to the device or disconnects</source>
        <translation>Verbindet mit dem Gerät oder trennt die Verbindung</translation>
    </message>
    <message id="shell_transferRuns">
        <source>Communication is running. Editing is barred meanwhile.</source>
        <translation>Die Kommunikation läuft. Solange ist die Bearbeitung gesperrt.</translation>
    </message>
    <message id="shell_readPage">
        <source>&amp;Read this page</source>
        <translation>Diese Seite &amp;lesen</translation>
    </message>
    <message id="shell_readPageTip">
        <source>Reads the parameters of this page from the device</source>
        <translation>Liest die Parameter dieser Seite aus dem Gerät</translation>
    </message>
    <message id="shell_readAll">
        <source>Read &amp;all</source>
        <translation>&amp;Alles lesen</translation>
    </message>
    <message id="shell_readAllTip">
        <source>Reads all parameters from the device</source>
        <translation>Liest alle Parameter aus dem Gerät</translation>
    </message>
    <message id="shell_changes">
        <source>&amp;Changes…</source>
        <translation>Ä&amp;nderungen…</translation>
    </message>
    <message id="shell_changesTip">
        <source>Shows the pending changes</source>
        <translation>Zeigt die offenen Änderungen</translation>
    </message>
    <message id="shell_language">
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message id="shell_userLevel">
        <source>User level</source>
        <translation>Benutzerebene</translation>
    </message>
    <message id="shell_userLevel1">
        <source>Observer</source>
        <translation>Beobachter</translation>
    </message>
    <message id="shell_userLevel2">
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message id="shell_userLevel3">
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message id="shell_userLevel4">
        <source>Specialist</source>
        <translation>Spezialist</translation>
    </message>
    <message id="shell_pages">
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message id="shell_log">
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message id="shell_logClear">
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message id="shell_logTime">
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message id="shell_logCategory">
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message id="shell_logText">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="shell_about">
        <source>&amp;About Quill</source>
        <translation>Ü&amp;ber Quill</translation>
    </message>
    <message id="shell_aboutText">
        <source>A reference host for the Quill controls with a simulated valve positioner.</source>
        <translation>Ein Referenz-Host für die Quill-Bedienelemente mit einem simulierten Stellungsregler.</translation>
    </message>
    <message id="shell_aboutVersion">
        <source>Version %1, under the Apache License 2.0</source>
        <translation>Version %1, unter der Apache-Lizenz 2.0</translation>
    </message>
    <message id="shell_saved">
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message id="shell_opened">
        <source>Opened: %1</source>
        <translation>Geöffnet: %1</translation>
    </message>
    <message id="shell_editCount">
        <source>Pending changes: %1</source>
        <translation>Offene Änderungen: %1</translation>
    </message>
    <message id="shell_closeTitle">
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message id="shell_readQuestion">
        <source>Reading replaces the edits of these parameters. Read?</source>
        <translation>Das Lesen ersetzt die Änderungen an diesen Parametern. Lesen?</translation>
    </message>
    <message id="shell_userLevelTooLow">
        <source>Your user level does not allow changes on the device.</source>
        <translation>Ihre Benutzerebene lässt keine Änderungen am Gerät zu.</translation>
    </message>
    <message id="shell_offlineNoRequest">
        <source>This needs the device. Go online first.</source>
        <translation>Dazu wird das Gerät gebraucht. Gehen Sie zuerst online.</translation>
    </message>
    <message id="shell_errNoFile">
        <source>The file %1 does not exist. Choose another file.</source>
        <translation>Die Datei %1 ist nicht vorhanden. Wählen Sie eine andere Datei.</translation>
    </message>
    <message id="shell_errUnreadable">
        <source>The file %1 cannot be read. Check that you may read it, or choose another file.</source>
        <translation>Die Datei %1 kann nicht gelesen werden. Prüfen Sie Ihre Leserechte oder wählen Sie eine andere Datei.</translation>
    </message>
    <message id="shell_errEncoding">
        <source>The datafile has a character encoding that cannot be read: %1. Save it as UTF-8 and open it again.</source>
        <translation>Die Gerätedatei hat eine Zeichenkodierung, die nicht gelesen werden kann: %1. Speichern Sie sie als UTF-8 und öffnen Sie sie erneut.</translation>
    </message>
    <message id="shell_errNoDatafile">
        <source>This is no datafile: %1. Choose another file.</source>
        <translation>Das ist keine Gerätedatei: %1. Wählen Sie eine andere Datei.</translation>
    </message>
    <message id="shell_errNoFolder">
        <source>The folder %1 does not exist. Choose another folder.</source>
        <translation>Der Ordner %1 ist nicht vorhanden. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message id="shell_errIsFolder">
        <source>%1 is a folder. Choose a file name.</source>
        <translation>%1 ist ein Ordner. Wählen Sie einen Dateinamen.</translation>
    </message>
    <message id="shell_errNoName">
        <source>The datafile has no file name yet. Save it under a name.</source>
        <translation>Die Gerätedatei hat noch keinen Dateinamen. Speichern Sie sie unter einem Namen.</translation>
    </message>
    <message id="shell_errWrite">
        <source>The file could not be written, the old one is unchanged: %1. Free some space or choose another folder.</source>
        <translation>Die Datei konnte nicht geschrieben werden, die alte ist unverändert: %1. Schaffen Sie Platz oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message id="shell_errPatch">
        <source>The changes could not be put into the datafile, which is unchanged: %1. Check the value of this parameter.</source>
        <translation>Die Änderungen konnten nicht in die Gerätedatei eingetragen werden, sie ist unverändert: %1. Prüfen Sie den Wert dieses Parameters.</translation>
    </message>
    <!-- The window -->
    <message id="shell_disconnect">
        <source>&amp;Disconnect</source>
        <translation>&amp;Trennen</translation>
    </message>
    <message id="shell_lastRead">
        <source>Last read:</source>
        <translation>Zuletzt gelesen:</translation>
    </message>
    <message id="shell_readSection">
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message id="shell_pageIdentification">
        <source>Identification</source>
        <translation>Identifikation</translation>
    </message>
    <message id="shell_pageConfiguration">
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message id="shell_pageTuning">
        <source>Tuning and output</source>
        <translation>Abstimmung und Ausgang</translation>
    </message>
    <message id="shell_pageAlarms">
        <source>Alarms and burst mode</source>
        <translation>Alarme und Burst-Betrieb</translation>
    </message>
    <message id="shell_pageDiagnostics">
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message id="shell_sectionDevice">
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message id="shell_sectionInstallation">
        <source>Installation</source>
        <translation>Einbauort</translation>
    </message>
    <message id="shell_sectionAssembly">
        <source>Valve assembly</source>
        <translation>Ventil und Antrieb</translation>
    </message>
    <message id="shell_sectionSignal">
        <source>Input signal</source>
        <translation>Eingangssignal</translation>
    </message>
    <message id="shell_sectionPressure">
        <source>Pressures</source>
        <translation>Drücke</translation>
    </message>
    <message id="shell_sectionMaintenance">
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message id="shell_sectionTuning">
        <source>Tuning</source>
        <translation>Abstimmung</translation>
    </message>
    <message id="shell_sectionCurve">
        <source>User curve</source>
        <translation>Benutzerkennlinie</translation>
    </message>
    <message id="shell_sectionOutput">
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message id="shell_sectionAlarms">
        <source>Alarms</source>
        <translation>Alarme</translation>
    </message>
    <message id="shell_sectionBurst">
        <source>Burst mode</source>
        <translation>Burst-Betrieb</translation>
    </message>
    <message id="shell_sectionDiagnostics">
        <source>Device condition</source>
        <translation>Gerätezustand</translation>
    </message>
    <message id="shell_dark">
        <source>&amp;Dark colours</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message id="shell_darkTip">
        <source>Light texts on a dark ground</source>
        <translation>Helle Texte auf dunklem Grund</translation>
    </message>
    <message id="shell_menuUnits">
        <source>&amp;Units</source>
        <translation>&amp;Einheiten</translation>
    </message>
    <message id="shell_unitsmetric">
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message id="shell_unitsSI">
        <source>SI</source>
        <translation>SI</translation>
    </message>
    <message id="shell_unitsUS">
        <source>US</source>
        <translation>US</translation>
    </message>
    <message id="shell_answerSave">
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message id="shell_answerDiscard">
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message id="shell_saveQuestion">
        <source>%1 has changes that are not saved. Save them?</source>
        <translation>%1 enthält Änderungen, die nicht gespeichert sind. Speichern?</translation>
    </message>
    <message id="shell_wordModified">
        <source>modified</source>
        <translation>geändert</translation>
    </message>
    <message id="shell_wordError">
        <source>not correct</source>
        <translation>nicht korrekt</translation>
    </message>
    <message id="shell_logState">
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message id="shell_logMessage">
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message id="shell_logError">
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message id="shell_logDetail">
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message id="shell_logShowDetails">
        <source>Show details</source>
        <translation>Details anzeigen</translation>
    </message>
    <message id="shell_state_edited">
        <source>edited</source>
        <translation>geändert</translation>
    </message>
    <message id="shell_state_editedError">
        <source>edited, not correct</source>
        <translation>geändert, nicht korrekt</translation>
    </message>
    <message id="shell_state_corrected">
        <source>corrected</source>
        <translation>berichtigt</translation>
    </message>
    <message id="shell_state_original">
        <source>as before</source>
        <translation>wie zuvor</translation>
    </message>
    <message id="shell_state_notRead">
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message id="shell_state_sync">
        <source>in step with the device</source>
        <translation>stimmt mit dem Gerät überein</translation>
    </message>
    <message id="shell_state_syncError">
        <source>communication error</source>
        <translation>Kommunikationsfehler</translation>
    </message>
    <message id="shell_state_reSync">
        <source>in step with the device again</source>
        <translation>stimmt wieder mit dem Gerät überein</translation>
    </message>
    <!-- End of the window -->
</context>
</TS>
