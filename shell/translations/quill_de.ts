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
        <source>Output current</source>
        <translation>Ausgangsstrom</translation>
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
        <translation>Weg</translation>
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
        <source>sample %1</source>
        <translation>Beispiel %1</translation>
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
        <source>Open a &amp;sample</source>
        <translation>&amp;Beispiel öffnen</translation>
    </message>
    <message id="shell_openSampleTip">
        <source>Opens the datafile of a sample device</source>
        <translation>Öffnet die Datei eines Beispielgeräts</translation>
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
        <source>Alarms</source>
        <translation>Alarme</translation>
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
    <message id="shell_pageStatus">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="shell_pageStatusConfiguration">
        <source>Status configuration</source>
        <translation>Statuskonfiguration</translation>
    </message>
    <message id="shell_sampleVX4400H">
        <source>VX4400&amp;H (HART)</source>
        <translation>VX4400&amp;H (HART)</translation>
    </message>
    <message id="shell_sampleVX4400F">
        <source>VX4400&amp;F (fieldbus)</source>
        <translation>VX4400&amp;F (Feldbus)</translation>
    </message>
    <message id="shell_showStatus">
        <source>Device s&amp;tatus</source>
        <translation>Geräte&amp;status</translation>
    </message>
    <message id="shell_showStatusTip">
        <source>Shows the page with the device's status</source>
        <translation>Zeigt die Seite mit dem Gerätestatus</translation>
    </message>
    <message id="shell_deviceStatusIs">
        <source>Device status: %1</source>
        <translation>Gerätestatus: %1</translation>
    </message>
    <message id="shell_configurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguration geändert</translation>
    </message>
    <message id="shell_clearChanged">
        <source>&amp;Acknowledge changed configuration</source>
        <translation>Geänderte Konfiguration &amp;quittieren</translation>
    </message>
    <message id="shell_clearChangedTip">
        <source>Clears the device's sign that its configuration was changed</source>
        <translation>Löscht die Anzeige des Geräts, dass seine Konfiguration geändert wurde</translation>
    </message>
    <message id="shell_acknowledge">
        <source>Acknowledge</source>
        <translation>Quittieren</translation>
    </message>
    <message id="shell_menuClassification">
        <source>Status &amp;classification</source>
        <translation>Status&amp;klassifizierung</translation>
    </message>
    <message id="shell_classificationSeverity">
        <source>&amp;Severity</source>
        <translation>&amp;Schweregrad</translation>
    </message>
    <message id="shell_classificationNamur">
        <source>&amp;NAMUR NE 107</source>
        <translation>&amp;NAMUR NE 107</translation>
    </message>
    <message id="shell_classificationTip">
        <source>How the device's conditions are classified</source>
        <translation>Wie die Zustände des Geräts eingestuft werden</translation>
    </message>
    <message id="deviceStatus">
        <source>Device status</source>
        <translation>Gerätestatus</translation>
    </message>
    <message id="deviceStatusNAMUR">
        <source>Device status (NAMUR)</source>
        <translation>Gerätestatus (NAMUR)</translation>
    </message>
    <message id="deviceStatusMasks">
        <source>Status masks</source>
        <translation>Statusmasken</translation>
    </message>
    <message id="statusConfiguration">
        <source>Status configuration</source>
        <translation>Statuskonfiguration</translation>
    </message>
    <message id="deviceFailure">
        <source>Failure</source>
        <translation>Ausfall</translation>
    </message>
    <message id="deviceUnderTest">
        <source>Function check</source>
        <translation>Funktionskontrolle</translation>
    </message>
    <message id="deviceOffSpecification">
        <source>Out of spec</source>
        <translation>Außerhalb der Spezifikation</translation>
    </message>
    <message id="deviceMaintenanceRequired">
        <source>Maintenance required</source>
        <translation>Wartungsbedarf</translation>
    </message>
    <message id="deviceInfo">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="deviceOk">
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message id="deviceDiagnosisPassiv">
        <source>Diagnosis inactive</source>
        <translation>Diagnose inaktiv</translation>
    </message>
    <message id="failsafe">
        <source>Fail-safe</source>
        <translation>Sicherheitsstellung</translation>
    </message>
    <message id="alarm">
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message id="warning">
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message id="info">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="inactive">
        <source>Switched off</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message id="notMonitored">
        <source>Not monitored</source>
        <translation>Nicht überwacht</translation>
    </message>
    <message id="unknown">
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message id="checkEnabled">
        <source>Switched on</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message id="checkDisabled">
        <source>Switched off</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message id="checkEnabledmodified">
        <source>Switched on, changed</source>
        <translation>Eingeschaltet, geändert</translation>
    </message>
    <message id="checkDisabledmodified">
        <source>Switched off, changed</source>
        <translation>Ausgeschaltet, geändert</translation>
    </message>
    <message id="modified">
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message id="statusGroupElectronics">
        <source>Electronics</source>
        <translation>Elektronik</translation>
    </message>
    <message id="statusElectronicsFailure">
        <source>Electronics failure</source>
        <translation>Elektronikausfall</translation>
    </message>
    <message id="statusMemoryFailure">
        <source>Memory failure</source>
        <translation>Speicherfehler</translation>
    </message>
    <message id="statusParameterChecksumError">
        <source>Parameter checksum error</source>
        <translation>Prüfsummenfehler der Parameter</translation>
    </message>
    <message id="statusInternalVoltageLow">
        <source>Internal supply voltage low</source>
        <translation>Interne Versorgungsspannung zu niedrig</translation>
    </message>
    <message id="statusTemperatureHigh">
        <source>Device temperature high</source>
        <translation>Gerätetemperatur zu hoch</translation>
    </message>
    <message id="statusTemperatureLow">
        <source>Device temperature low</source>
        <translation>Gerätetemperatur zu niedrig</translation>
    </message>
    <message id="statusCoverOpen">
        <source>Cover open</source>
        <translation>Gehäusedeckel offen</translation>
    </message>
    <message id="statusWatchdogReset">
        <source>Reset by watchdog</source>
        <translation>Neustart durch Watchdog</translation>
    </message>
    <message id="statusGroupSensors">
        <source>Sensors</source>
        <translation>Sensoren</translation>
    </message>
    <message id="statusTravelSensorFailure">
        <source>Travel sensor failure</source>
        <translation>Ausfall des Wegsensors</translation>
    </message>
    <message id="statusTravelOutOfRange">
        <source>Travel outside sensor range</source>
        <translation>Weg außerhalb des Messbereichs</translation>
    </message>
    <message id="statusSupplySensorFailure">
        <source>Supply pressure sensor failure</source>
        <translation>Ausfall des Zuluftdrucksensors</translation>
    </message>
    <message id="statusActuatorSensorFailure">
        <source>Actuator pressure sensor failure</source>
        <translation>Ausfall des Antriebsdrucksensors</translation>
    </message>
    <message id="statusTemperatureSensorFailure">
        <source>Temperature sensor failure</source>
        <translation>Ausfall des Temperatursensors</translation>
    </message>
    <message id="statusSensorDrift">
        <source>Sensor drift</source>
        <translation>Sensordrift</translation>
    </message>
    <message id="statusGroupPneumatics">
        <source>Pneumatics</source>
        <translation>Pneumatik</translation>
    </message>
    <message id="statusSupplyPressureLow">
        <source>Supply pressure low</source>
        <translation>Zuluftdruck zu niedrig</translation>
    </message>
    <message id="statusSupplyPressureHigh">
        <source>Supply pressure high</source>
        <translation>Zuluftdruck zu hoch</translation>
    </message>
    <message id="statusSupplyPressureUnstable">
        <source>Supply pressure unstable</source>
        <translation>Zuluftdruck schwankt</translation>
    </message>
    <message id="statusDriveSaturated">
        <source>Drive signal at its limit</source>
        <translation>Stellsignal an der Grenze</translation>
    </message>
    <message id="statusPneumaticLeak">
        <source>Pneumatic leak</source>
        <translation>Pneumatische Leckage</translation>
    </message>
    <message id="statusPilotStageFailure">
        <source>Pilot stage failure</source>
        <translation>Ausfall der Vorsteuerstufe</translation>
    </message>
    <message id="statusExhaustBlocked">
        <source>Exhaust blocked</source>
        <translation>Abluft blockiert</translation>
    </message>
    <message id="statusGroupValve">
        <source>Valve and actuator</source>
        <translation>Ventil und Antrieb</translation>
    </message>
    <message id="statusTravelDeviation">
        <source>Travel deviation</source>
        <translation>Regelabweichung</translation>
    </message>
    <message id="statusValveStuck">
        <source>Valve stuck</source>
        <translation>Ventil blockiert</translation>
    </message>
    <message id="statusFrictionHigh">
        <source>Friction high</source>
        <translation>Reibung zu hoch</translation>
    </message>
    <message id="statusFrictionLow">
        <source>Friction low</source>
        <translation>Reibung zu niedrig</translation>
    </message>
    <message id="statusStickSlip">
        <source>Stick-slip motion</source>
        <translation>Ruckgleiten (Stick-Slip)</translation>
    </message>
    <message id="statusTravelHigh">
        <source>Travel high alarm</source>
        <translation>Wegalarm oben</translation>
    </message>
    <message id="statusTravelLow">
        <source>Travel low alarm</source>
        <translation>Wegalarm unten</translation>
    </message>
    <message id="statusCycleCounterLimit">
        <source>Cycle counter limit exceeded</source>
        <translation>Grenzwert des Zyklenzählers überschritten</translation>
    </message>
    <message id="statusTravelSumLimit">
        <source>Total travel limit exceeded</source>
        <translation>Grenzwert der Wegsumme überschritten</translation>
    </message>
    <message id="statusSpringFailure">
        <source>Actuator spring failure</source>
        <translation>Bruch der Antriebsfeder</translation>
    </message>
    <message id="statusSeatWear">
        <source>Seat wear</source>
        <translation>Verschleiß des Sitzes</translation>
    </message>
    <message id="statusPackingLeak">
        <source>Packing leak</source>
        <translation>Leckage der Stopfbuchse</translation>
    </message>
    <message id="statusGroupProcess">
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message id="statusSignalLow">
        <source>Input signal low</source>
        <translation>Eingangssignal zu niedrig</translation>
    </message>
    <message id="statusSignalHigh">
        <source>Input signal high</source>
        <translation>Eingangssignal zu hoch</translation>
    </message>
    <message id="statusSetpointOscillating">
        <source>Set point oscillates</source>
        <translation>Sollwert schwingt</translation>
    </message>
    <message id="statusCavitation">
        <source>Cavitation</source>
        <translation>Kavitation</translation>
    </message>
    <message id="statusSafetyShutdown">
        <source>Safety shutdown active</source>
        <translation>Sicherheitsabschaltung aktiv</translation>
    </message>
    <message id="statusStrokeTestFailed">
        <source>Stroke test failed</source>
        <translation>Hubtest fehlgeschlagen</translation>
    </message>
    <message id="statusStrokeTestOverdue">
        <source>Stroke test overdue</source>
        <translation>Hubtest überfällig</translation>
    </message>
    <message id="statusGroupOperation">
        <source>Configuration and operation</source>
        <translation>Konfiguration und Betrieb</translation>
    </message>
    <message id="statusSimulationActive">
        <source>Simulation active</source>
        <translation>Simulation aktiv</translation>
    </message>
    <message id="statusLocalOperation">
        <source>Local operation</source>
        <translation>Vor-Ort-Bedienung</translation>
    </message>
    <message id="statusLoopCurrentFixed">
        <source>Loop current fixed</source>
        <translation>Schleifenstrom fest eingestellt</translation>
    </message>
    <message id="statusBusTimeout">
        <source>Bus communication interrupted</source>
        <translation>Buskommunikation unterbrochen</translation>
    </message>
    <message id="statusNotCalibrated">
        <source>Travel not calibrated</source>
        <translation>Weg nicht kalibriert</translation>
    </message>
    <message id="statusCalibrationRunning">
        <source>Calibration running</source>
        <translation>Kalibrierung läuft</translation>
    </message>
    <message id="statusWriteProtected">
        <source>Write protection on</source>
        <translation>Schreibschutz aktiv</translation>
    </message>
    <message id="statusMaintenanceDue">
        <source>Maintenance due</source>
        <translation>Wartung fällig</translation>
    </message>
    <message id="statusColdStart">
        <source>Restarted since last read</source>
        <translation>Neustart seit letztem Auslesen</translation>
    </message>
    <message id="statusHARTConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguration geändert</translation>
    </message>
    <message id="statusConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguration geändert</translation>
    </message>
    <message id="faultSupplyFailure">
        <source>Supply air fails</source>
        <translation>Zuluft fällt aus</translation>
    </message>
    <message id="faultSupplyTooHigh">
        <source>Supply pressure regulator fails</source>
        <translation>Zuluftdruckregler versagt</translation>
    </message>
    <message id="faultFriction">
        <source>Raised friction</source>
        <translation>Erhöhte Reibung</translation>
    </message>
    <message id="faultWornPacking">
        <source>Worn packing</source>
        <translation>Verschlissene Stopfbuchse</translation>
    </message>
    <message id="faultStuck">
        <source>Valve stuck</source>
        <translation>Ventil blockiert</translation>
    </message>
    <message id="faultLeak">
        <source>Leaking actuator</source>
        <translation>Undichter Antrieb</translation>
    </message>
    <message id="faultTravelSensor">
        <source>Travel sensor fails</source>
        <translation>Wegsensor fällt aus</translation>
    </message>
    <message id="faultSupplySensor">
        <source>Supply pressure sensor fails</source>
        <translation>Zuluftdrucksensor fällt aus</translation>
    </message>
    <message id="faultActuatorSensor">
        <source>Actuator pressure sensor fails</source>
        <translation>Antriebsdrucksensor fällt aus</translation>
    </message>
    <message id="faultTemperatureSensor">
        <source>Temperature sensor fails</source>
        <translation>Temperatursensor fällt aus</translation>
    </message>
    <message id="faultOverheating">
        <source>Overheating</source>
        <translation>Überhitzung</translation>
    </message>
    <message id="faultFrost">
        <source>Frost</source>
        <translation>Frost</translation>
    </message>
    <message id="faultCoverOpen">
        <source>Cover lifted</source>
        <translation>Deckel abgenommen</translation>
    </message>
    <message id="faultSignalLost">
        <source>Input signal lost</source>
        <translation>Eingangssignal ausgefallen</translation>
    </message>
    <message id="faultSignalOscillating">
        <source>Oscillating input signal</source>
        <translation>Schwingendes Eingangssignal</translation>
    </message>
    <message id="faultSimulation">
        <source>Simulation of measured values</source>
        <translation>Simulation der Messwerte</translation>
    </message>
    <message id="statusMasks">
        <source>Status configuration</source>
        <translation>Statuskonfiguration</translation>
    </message>
    <message id="cycleCounterLimit">
        <source>Cycle counter limit</source>
        <translation>Grenzwert Zyklenzähler</translation>
    </message>
    <message id="travelSum">
        <source>Total travel</source>
        <translation>Wegsumme</translation>
    </message>
    <message id="travelSumLimit">
        <source>Total travel limit</source>
        <translation>Grenzwert Wegsumme</translation>
    </message>
    <message id="travelDeviationLimit">
        <source>Travel deviation limit</source>
        <translation>Grenzwert Regelabweichung</translation>
    </message>
    <message id="frictionHighLimit">
        <source>High friction limit</source>
        <translation>Oberer Reibungsgrenzwert</translation>
    </message>
    <message id="frictionLowLimit">
        <source>Low friction limit</source>
        <translation>Unterer Reibungsgrenzwert</translation>
    </message>
    <message id="inputCurrent">
        <source>Input current</source>
        <translation>Eingangsstrom</translation>
    </message>
    <message id="travelSetpoint">
        <source>Travel set point</source>
        <translation>Wegsollwert</translation>
    </message>
    <message id="travelDeviation">
        <source>Travel deviation</source>
        <translation>Regelabweichung</translation>
    </message>
    <message id="driveSignal">
        <source>Drive signal</source>
        <translation>Stellsignal</translation>
    </message>
    <message id="valveFriction">
        <source>Valve friction</source>
        <translation>Ventilreibung</translation>
    </message>
    <message id="statusMask1">
        <source>Status mask, part 1</source>
        <translation>Statusmaske, Teil 1</translation>
    </message>
    <message id="statusMaskInfo1">
        <source>Information mask, part 1</source>
        <translation>Maske Information, Teil 1</translation>
    </message>
    <message id="statusMaskWarning1">
        <source>Warning mask, part 1</source>
        <translation>Maske Warnung, Teil 1</translation>
    </message>
    <message id="statusMaskAlarm1">
        <source>Alarm mask, part 1</source>
        <translation>Maske Alarm, Teil 1</translation>
    </message>
    <message id="statusMaskOnOff1">
        <source>On/off mask, part 1</source>
        <translation>Ein/Aus-Maske, Teil 1</translation>
    </message>
    <message id="statusMask2">
        <source>Status mask, part 2</source>
        <translation>Statusmaske, Teil 2</translation>
    </message>
    <message id="statusMaskInfo2">
        <source>Information mask, part 2</source>
        <translation>Maske Information, Teil 2</translation>
    </message>
    <message id="statusMaskWarning2">
        <source>Warning mask, part 2</source>
        <translation>Maske Warnung, Teil 2</translation>
    </message>
    <message id="statusMaskAlarm2">
        <source>Alarm mask, part 2</source>
        <translation>Maske Alarm, Teil 2</translation>
    </message>
    <message id="statusMaskOnOff2">
        <source>On/off mask, part 2</source>
        <translation>Ein/Aus-Maske, Teil 2</translation>
    </message>
    <message id="statusMask3">
        <source>Status mask, part 3</source>
        <translation>Statusmaske, Teil 3</translation>
    </message>
    <message id="statusMaskInfo3">
        <source>Information mask, part 3</source>
        <translation>Maske Information, Teil 3</translation>
    </message>
    <message id="statusMaskWarning3">
        <source>Warning mask, part 3</source>
        <translation>Maske Warnung, Teil 3</translation>
    </message>
    <message id="statusMaskAlarm3">
        <source>Alarm mask, part 3</source>
        <translation>Maske Alarm, Teil 3</translation>
    </message>
    <message id="statusMaskOnOff3">
        <source>On/off mask, part 3</source>
        <translation>Ein/Aus-Maske, Teil 3</translation>
    </message>
    <message id="shell_simulation">
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message id="shell_simulationFaults">
        <source>Faults</source>
        <translation>Störungen</translation>
    </message>
    <message id="shell_simulationMend">
        <source>Put everything right</source>
        <translation>Alles beheben</translation>
    </message>
    <message id="shell_simulationFriction">
        <source>Friction</source>
        <translation>Reibung</translation>
    </message>
    <message id="shell_simulationSignal">
        <source>Fixed input current</source>
        <translation>Fester Eingangsstrom</translation>
    </message>
    <message id="eventLog">
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message id="moreEvents">
        <source>More events</source>
        <translation>Weitere Ereignisse</translation>
    </message>
    <message id="totalOperationTime">
        <source>Total operation time</source>
        <translation>Gesamtbetriebszeit</translation>
    </message>
    <message id="eventLogTotalOperationTime">
        <source>Total operation time</source>
        <translation>Gesamtbetriebszeit</translation>
    </message>
    <message id="dateEstimate">
        <source>*) Assuming 0s downtime</source>
        <translation>*) Ohne Stillstandszeit gerechnet</translation>
    </message>
    <message id="class">
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message id="event">
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message id="eventLogTimeHeader">
        <source>Operation time (h)</source>
        <translation>Betriebszeit (h)</translation>
    </message>
    <message id="date">
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message id="channelIndex">
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message id="row">
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message id="eventObsolete">
        <source>Obsolete</source>
        <translation>Überholt</translation>
    </message>
    <message id="eventLogOperationTime">
        <source>Operation time</source>
        <translation>Betriebszeit</translation>
    </message>
    <message id="counters">
        <source>Counters</source>
        <translation>Zähler</translation>
    </message>
    <message id="vx4400eventClassNone">
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message id="vx4400eventClassError">
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message id="vx4400eventClassAlarm">
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message id="vx4400eventClassWarning">
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message id="vx4400eventClassNotification">
        <source>Notification</source>
        <translation>Meldung</translation>
    </message>
    <message id="vx4400eventNone">
        <source>No more events</source>
        <translation>Keine weiteren Ereignisse</translation>
    </message>
    <message id="vx4400eventExternalReset">
        <source>External reset</source>
        <translation>Externer Neustart</translation>
    </message>
    <message id="vx4400eventConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguration geändert</translation>
    </message>
    <message id="vx4400eventAddressChanged">
        <source>Polling address changed</source>
        <translation>Abfrageadresse geändert</translation>
    </message>
    <message id="vx4400eventStatusReset">
        <source>Device status reset</source>
        <translation>Gerätestatus zurückgesetzt</translation>
    </message>
    <message id="vx4400eventCountersReset">
        <source>Counters reset</source>
        <translation>Zähler zurückgesetzt</translation>
    </message>
    <message id="vx4400eventExtremesReset">
        <source>Temperature extremes reset</source>
        <translation>Temperaturextreme zurückgesetzt</translation>
    </message>
    <message id="vx4400eventLogReset">
        <source>Event log cleared</source>
        <translation>Ereignisprotokoll gelöscht</translation>
    </message>
    <message id="vx4400eventTuningReset">
        <source>Tuning back to defaults</source>
        <translation>Regelparameter auf Werkseinstellung</translation>
    </message>
    <message id="vx4400eventAlarmsReset">
        <source>Alarm settings back to defaults</source>
        <translation>Alarmeinstellungen auf Werkseinstellung</translation>
    </message>
    <message id="vx4400eventFactorySettings">
        <source>Factory settings restored</source>
        <translation>Werkseinstellungen wiederhergestellt</translation>
    </message>
    <message id="vx4400eventCurrentCalibrated">
        <source>Loop current calibrated</source>
        <translation>Schleifenstrom kalibriert</translation>
    </message>
    <message id="reset">
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="resetView">
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="resetStatus">
        <source>Device status</source>
        <translation>Gerätestatus</translation>
    </message>
    <message id="resetDiagnosticsCode">
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message id="resetParametersCode">
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message id="resetDiagnostics">
        <source>Reset diagnostics</source>
        <translation>Diagnose zurücksetzen</translation>
    </message>
    <message id="resetDiagnosticsQuestion">
        <source>The diagnostic data chosen will be lost. Reset it?</source>
        <translation>Die gewählten Diagnosedaten gehen verloren. Zurücksetzen?</translation>
    </message>
    <message id="resetParameters">
        <source>Reset parameters</source>
        <translation>Parameter zurücksetzen</translation>
    </message>
    <message id="resetParametersQuestion">
        <source>This changes the device's settings or restarts it. The valve may move. Continue?</source>
        <translation>Dies ändert die Einstellungen des Geräts oder startet es neu. Das Ventil kann sich bewegen. Fortfahren?</translation>
    </message>
    <message id="resetting">
        <source>Resetting</source>
        <translation>Wird zurückgesetzt</translation>
    </message>
    <message id="resetNothing">
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message id="resetStatusAll">
        <source>Latched conditions</source>
        <translation>Gespeicherte Meldungen</translation>
    </message>
    <message id="resetCounters">
        <source>Counters</source>
        <translation>Zähler</translation>
    </message>
    <message id="resetExtremes">
        <source>Temperature extremes</source>
        <translation>Temperaturextreme</translation>
    </message>
    <message id="resetEventLog">
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message id="resetDiagnosticsAll">
        <source>All diagnostic data</source>
        <translation>Alle Diagnosedaten</translation>
    </message>
    <message id="resetTuning">
        <source>Tuning to defaults</source>
        <translation>Regelparameter auf Werkseinstellung</translation>
    </message>
    <message id="resetAlarms">
        <source>Alarm settings to defaults</source>
        <translation>Alarmeinstellungen auf Werkseinstellung</translation>
    </message>
    <message id="resetFactory">
        <source>All settings to factory defaults</source>
        <translation>Alle Einstellungen auf Werkseinstellung</translation>
    </message>
    <message id="resetRestart">
        <source>Restart the device</source>
        <translation>Gerät neu starten</translation>
    </message>
    <message id="hartAddress">
        <source>HART address</source>
        <translation>HART-Adresse</translation>
    </message>
    <message id="address">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="multidrop">
        <source>Multidrop</source>
        <translation>Multidrop</translation>
    </message>
    <message id="disabled">
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message id="enabled">
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message id="0">
        <source>0</source>
        <translation>0</translation>
    </message>
    <message id="1">
        <source>1</source>
        <translation>1</translation>
    </message>
    <message id="2">
        <source>2</source>
        <translation>2</translation>
    </message>
    <message id="3">
        <source>3</source>
        <translation>3</translation>
    </message>
    <message id="4">
        <source>4</source>
        <translation>4</translation>
    </message>
    <message id="5">
        <source>5</source>
        <translation>5</translation>
    </message>
    <message id="6">
        <source>6</source>
        <translation>6</translation>
    </message>
    <message id="7">
        <source>7</source>
        <translation>7</translation>
    </message>
    <message id="8">
        <source>8</source>
        <translation>8</translation>
    </message>
    <message id="9">
        <source>9</source>
        <translation>9</translation>
    </message>
    <message id="10">
        <source>10</source>
        <translation>10</translation>
    </message>
    <message id="11">
        <source>11</source>
        <translation>11</translation>
    </message>
    <message id="12">
        <source>12</source>
        <translation>12</translation>
    </message>
    <message id="13">
        <source>13</source>
        <translation>13</translation>
    </message>
    <message id="14">
        <source>14</source>
        <translation>14</translation>
    </message>
    <message id="15">
        <source>15</source>
        <translation>15</translation>
    </message>
    <message id="maCalibration">
        <source>mA calibration</source>
        <translation>mA-Kalibrierung</translation>
    </message>
    <message id="mACalibration">
        <source>mA calibration</source>
        <translation>mA-Kalibrierung</translation>
    </message>
    <message id="zeroPointTrim">
        <source>1. Drive the low test current</source>
        <translation>1. Unteren Prüfstrom ausgeben</translation>
    </message>
    <message id="measuredCurrentZeroTrim">
        <source>2. Type the measured low current</source>
        <translation>2. Gemessenen unteren Strom eingeben</translation>
    </message>
    <message id="finalValueTrim">
        <source>3. Drive the high test current</source>
        <translation>3. Oberen Prüfstrom ausgeben</translation>
    </message>
    <message id="measuredCurrentFullTrim">
        <source>4. Type the measured high current</source>
        <translation>4. Gemessenen oberen Strom eingeben</translation>
    </message>
    <message id="fixedOutputCurrentTurnOff">
        <source>5. Turn the fixed current off</source>
        <translation>5. Festen Strom abschalten</translation>
    </message>
    <message id="backWithArrow">
        <source>&lt;   Back</source>
        <translation>&lt;   Zurück</translation>
    </message>
    <message id="nextWithArrow">
        <source>Next   &gt;</source>
        <translation>Weiter   &gt;</translation>
    </message>
    <message id="recalibrate">
        <source>Calibrate again</source>
        <translation>Erneut kalibrieren</translation>
    </message>
    <message id="calibrationExitWarning">
        <source>The device still drives a fixed output current. Turn it off and leave the calibration?</source>
        <translation>Das Gerät gibt noch einen festen Strom aus. Abschalten und die Kalibrierung verlassen?</translation>
    </message>
    <message id="loopTestValue">
        <source>Test current</source>
        <translation>Prüfstrom</translation>
    </message>
    <message id="loopTestValueStep0">
        <source>Test current</source>
        <translation>Prüfstrom</translation>
    </message>
    <message id="loopTestValueStep2">
        <source>Test current</source>
        <translation>Prüfstrom</translation>
    </message>
    <message id="loopTestValueStep4">
        <source>Test current</source>
        <translation>Prüfstrom</translation>
    </message>
    <message id="loopCurrentZero">
        <source>Measured low current</source>
        <translation>Gemessener unterer Strom</translation>
    </message>
    <message id="loopCurrentGain">
        <source>Measured high current</source>
        <translation>Gemessener oberer Strom</translation>
    </message>
    <message id="moduleSelection">
        <source>Module selection</source>
        <translation>Modulauswahl</translation>
    </message>
    <message id="hartCmdErrIncorrectLoopCurrentMode">
        <source>The device does not drive a current for this step. Drive the test current first; in multidrop mode the current is fixed.</source>
        <translation>Das Gerät gibt für diesen Schritt keinen Strom aus. Zuerst den Prüfstrom ausgeben; im Multidrop-Betrieb ist der Strom fest.</translation>
    </message>
    <message id="hartCmdErrPassedParameterTooLarge">
        <source>The value is too large.</source>
        <translation>Der Wert ist zu groß.</translation>
    </message>
    <message id="hartCmdErrPassedParameterTooSmall">
        <source>The value is too small.</source>
        <translation>Der Wert ist zu klein.</translation>
    </message>
    <message id="eventLogEvent00">
        <source>Event 0</source>
        <translation>Ereignis 0</translation>
    </message>
    <message id="eventLogClass00">
        <source>Event class 0</source>
        <translation>Ereignisklasse 0</translation>
    </message>
    <message id="eventLogTime00">
        <source>Event time 0</source>
        <translation>Ereigniszeit 0</translation>
    </message>
    <message id="eventLogEvent01">
        <source>Event 1</source>
        <translation>Ereignis 1</translation>
    </message>
    <message id="eventLogClass01">
        <source>Event class 1</source>
        <translation>Ereignisklasse 1</translation>
    </message>
    <message id="eventLogTime01">
        <source>Event time 1</source>
        <translation>Ereigniszeit 1</translation>
    </message>
    <message id="eventLogEvent02">
        <source>Event 2</source>
        <translation>Ereignis 2</translation>
    </message>
    <message id="eventLogClass02">
        <source>Event class 2</source>
        <translation>Ereignisklasse 2</translation>
    </message>
    <message id="eventLogTime02">
        <source>Event time 2</source>
        <translation>Ereigniszeit 2</translation>
    </message>
    <message id="eventLogEvent03">
        <source>Event 3</source>
        <translation>Ereignis 3</translation>
    </message>
    <message id="eventLogClass03">
        <source>Event class 3</source>
        <translation>Ereignisklasse 3</translation>
    </message>
    <message id="eventLogTime03">
        <source>Event time 3</source>
        <translation>Ereigniszeit 3</translation>
    </message>
    <message id="eventLogEvent04">
        <source>Event 4</source>
        <translation>Ereignis 4</translation>
    </message>
    <message id="eventLogClass04">
        <source>Event class 4</source>
        <translation>Ereignisklasse 4</translation>
    </message>
    <message id="eventLogTime04">
        <source>Event time 4</source>
        <translation>Ereigniszeit 4</translation>
    </message>
    <message id="eventLogEvent05">
        <source>Event 5</source>
        <translation>Ereignis 5</translation>
    </message>
    <message id="eventLogClass05">
        <source>Event class 5</source>
        <translation>Ereignisklasse 5</translation>
    </message>
    <message id="eventLogTime05">
        <source>Event time 5</source>
        <translation>Ereigniszeit 5</translation>
    </message>
    <message id="eventLogEvent06">
        <source>Event 6</source>
        <translation>Ereignis 6</translation>
    </message>
    <message id="eventLogClass06">
        <source>Event class 6</source>
        <translation>Ereignisklasse 6</translation>
    </message>
    <message id="eventLogTime06">
        <source>Event time 6</source>
        <translation>Ereigniszeit 6</translation>
    </message>
    <message id="eventLogEvent07">
        <source>Event 7</source>
        <translation>Ereignis 7</translation>
    </message>
    <message id="eventLogClass07">
        <source>Event class 7</source>
        <translation>Ereignisklasse 7</translation>
    </message>
    <message id="eventLogTime07">
        <source>Event time 7</source>
        <translation>Ereigniszeit 7</translation>
    </message>
    <message id="eventLogEvent08">
        <source>Event 8</source>
        <translation>Ereignis 8</translation>
    </message>
    <message id="eventLogClass08">
        <source>Event class 8</source>
        <translation>Ereignisklasse 8</translation>
    </message>
    <message id="eventLogTime08">
        <source>Event time 8</source>
        <translation>Ereigniszeit 8</translation>
    </message>
    <message id="eventLogEvent09">
        <source>Event 9</source>
        <translation>Ereignis 9</translation>
    </message>
    <message id="eventLogClass09">
        <source>Event class 9</source>
        <translation>Ereignisklasse 9</translation>
    </message>
    <message id="eventLogTime09">
        <source>Event time 9</source>
        <translation>Ereigniszeit 9</translation>
    </message>
    <message id="eventLogEvent10">
        <source>Event 10</source>
        <translation>Ereignis 10</translation>
    </message>
    <message id="eventLogClass10">
        <source>Event class 10</source>
        <translation>Ereignisklasse 10</translation>
    </message>
    <message id="eventLogTime10">
        <source>Event time 10</source>
        <translation>Ereigniszeit 10</translation>
    </message>
    <message id="eventLogEvent11">
        <source>Event 11</source>
        <translation>Ereignis 11</translation>
    </message>
    <message id="eventLogClass11">
        <source>Event class 11</source>
        <translation>Ereignisklasse 11</translation>
    </message>
    <message id="eventLogTime11">
        <source>Event time 11</source>
        <translation>Ereigniszeit 11</translation>
    </message>
    <message id="eventLogEvent12">
        <source>Event 12</source>
        <translation>Ereignis 12</translation>
    </message>
    <message id="eventLogClass12">
        <source>Event class 12</source>
        <translation>Ereignisklasse 12</translation>
    </message>
    <message id="eventLogTime12">
        <source>Event time 12</source>
        <translation>Ereigniszeit 12</translation>
    </message>
    <message id="eventLogEvent13">
        <source>Event 13</source>
        <translation>Ereignis 13</translation>
    </message>
    <message id="eventLogClass13">
        <source>Event class 13</source>
        <translation>Ereignisklasse 13</translation>
    </message>
    <message id="eventLogTime13">
        <source>Event time 13</source>
        <translation>Ereigniszeit 13</translation>
    </message>
    <message id="eventLogEvent14">
        <source>Event 14</source>
        <translation>Ereignis 14</translation>
    </message>
    <message id="eventLogClass14">
        <source>Event class 14</source>
        <translation>Ereignisklasse 14</translation>
    </message>
    <message id="eventLogTime14">
        <source>Event time 14</source>
        <translation>Ereigniszeit 14</translation>
    </message>
    <message id="eventLogEvent15">
        <source>Event 15</source>
        <translation>Ereignis 15</translation>
    </message>
    <message id="eventLogClass15">
        <source>Event class 15</source>
        <translation>Ereignisklasse 15</translation>
    </message>
    <message id="eventLogTime15">
        <source>Event time 15</source>
        <translation>Ereigniszeit 15</translation>
    </message>
    <message id="eventLogEvent16">
        <source>Event 16</source>
        <translation>Ereignis 16</translation>
    </message>
    <message id="eventLogClass16">
        <source>Event class 16</source>
        <translation>Ereignisklasse 16</translation>
    </message>
    <message id="eventLogTime16">
        <source>Event time 16</source>
        <translation>Ereigniszeit 16</translation>
    </message>
    <message id="eventLogEvent17">
        <source>Event 17</source>
        <translation>Ereignis 17</translation>
    </message>
    <message id="eventLogClass17">
        <source>Event class 17</source>
        <translation>Ereignisklasse 17</translation>
    </message>
    <message id="eventLogTime17">
        <source>Event time 17</source>
        <translation>Ereigniszeit 17</translation>
    </message>
    <message id="eventLogEvent18">
        <source>Event 18</source>
        <translation>Ereignis 18</translation>
    </message>
    <message id="eventLogClass18">
        <source>Event class 18</source>
        <translation>Ereignisklasse 18</translation>
    </message>
    <message id="eventLogTime18">
        <source>Event time 18</source>
        <translation>Ereigniszeit 18</translation>
    </message>
    <message id="eventLogEvent19">
        <source>Event 19</source>
        <translation>Ereignis 19</translation>
    </message>
    <message id="eventLogClass19">
        <source>Event class 19</source>
        <translation>Ereignisklasse 19</translation>
    </message>
    <message id="eventLogTime19">
        <source>Event time 19</source>
        <translation>Ereigniszeit 19</translation>
    </message>
    <message id="eventLogEvent20">
        <source>Event 20</source>
        <translation>Ereignis 20</translation>
    </message>
    <message id="eventLogClass20">
        <source>Event class 20</source>
        <translation>Ereignisklasse 20</translation>
    </message>
    <message id="eventLogTime20">
        <source>Event time 20</source>
        <translation>Ereigniszeit 20</translation>
    </message>
    <message id="eventLogEvent21">
        <source>Event 21</source>
        <translation>Ereignis 21</translation>
    </message>
    <message id="eventLogClass21">
        <source>Event class 21</source>
        <translation>Ereignisklasse 21</translation>
    </message>
    <message id="eventLogTime21">
        <source>Event time 21</source>
        <translation>Ereigniszeit 21</translation>
    </message>
    <message id="eventLogEvent22">
        <source>Event 22</source>
        <translation>Ereignis 22</translation>
    </message>
    <message id="eventLogClass22">
        <source>Event class 22</source>
        <translation>Ereignisklasse 22</translation>
    </message>
    <message id="eventLogTime22">
        <source>Event time 22</source>
        <translation>Ereigniszeit 22</translation>
    </message>
    <message id="eventLogEvent23">
        <source>Event 23</source>
        <translation>Ereignis 23</translation>
    </message>
    <message id="eventLogClass23">
        <source>Event class 23</source>
        <translation>Ereignisklasse 23</translation>
    </message>
    <message id="eventLogTime23">
        <source>Event time 23</source>
        <translation>Ereigniszeit 23</translation>
    </message>
    <message id="eventLogEvent24">
        <source>Event 24</source>
        <translation>Ereignis 24</translation>
    </message>
    <message id="eventLogClass24">
        <source>Event class 24</source>
        <translation>Ereignisklasse 24</translation>
    </message>
    <message id="eventLogTime24">
        <source>Event time 24</source>
        <translation>Ereigniszeit 24</translation>
    </message>
    <message id="eventLogEvent25">
        <source>Event 25</source>
        <translation>Ereignis 25</translation>
    </message>
    <message id="eventLogClass25">
        <source>Event class 25</source>
        <translation>Ereignisklasse 25</translation>
    </message>
    <message id="eventLogTime25">
        <source>Event time 25</source>
        <translation>Ereigniszeit 25</translation>
    </message>
    <message id="eventLogEvent26">
        <source>Event 26</source>
        <translation>Ereignis 26</translation>
    </message>
    <message id="eventLogClass26">
        <source>Event class 26</source>
        <translation>Ereignisklasse 26</translation>
    </message>
    <message id="eventLogTime26">
        <source>Event time 26</source>
        <translation>Ereigniszeit 26</translation>
    </message>
    <message id="eventLogEvent27">
        <source>Event 27</source>
        <translation>Ereignis 27</translation>
    </message>
    <message id="eventLogClass27">
        <source>Event class 27</source>
        <translation>Ereignisklasse 27</translation>
    </message>
    <message id="eventLogTime27">
        <source>Event time 27</source>
        <translation>Ereigniszeit 27</translation>
    </message>
    <message id="eventLogEvent28">
        <source>Event 28</source>
        <translation>Ereignis 28</translation>
    </message>
    <message id="eventLogClass28">
        <source>Event class 28</source>
        <translation>Ereignisklasse 28</translation>
    </message>
    <message id="eventLogTime28">
        <source>Event time 28</source>
        <translation>Ereigniszeit 28</translation>
    </message>
    <message id="eventLogEvent29">
        <source>Event 29</source>
        <translation>Ereignis 29</translation>
    </message>
    <message id="eventLogClass29">
        <source>Event class 29</source>
        <translation>Ereignisklasse 29</translation>
    </message>
    <message id="eventLogTime29">
        <source>Event time 29</source>
        <translation>Ereigniszeit 29</translation>
    </message>
    <message id="shell_settingsUnreadable">
        <source>The settings in %1 cannot be read. The program starts with its usual settings.</source>
        <translation>Die Einstellungen in %1 sind nicht lesbar. Das Programm startet mit den üblichen Einstellungen.</translation>
    </message>
    <message id="vx4400eventElectronicsFailure">
        <source>Electronics failure</source>
        <translation>Elektronikausfall</translation>
    </message>
    <message id="vx4400eventElectronicsFailureOff">
        <source>Electronics failure: ended</source>
        <translation>Elektronikausfall: beendet</translation>
    </message>
    <message id="vx4400eventMemoryFailure">
        <source>Memory failure</source>
        <translation>Speicherfehler</translation>
    </message>
    <message id="vx4400eventMemoryFailureOff">
        <source>Memory failure: ended</source>
        <translation>Speicherfehler: beendet</translation>
    </message>
    <message id="vx4400eventParameterChecksumError">
        <source>Parameter checksum error</source>
        <translation>Prüfsummenfehler der Parameter</translation>
    </message>
    <message id="vx4400eventParameterChecksumErrorOff">
        <source>Parameter checksum error: ended</source>
        <translation>Prüfsummenfehler der Parameter: beendet</translation>
    </message>
    <message id="vx4400eventInternalVoltageLow">
        <source>Internal supply voltage low</source>
        <translation>Interne Versorgungsspannung zu niedrig</translation>
    </message>
    <message id="vx4400eventInternalVoltageLowOff">
        <source>Internal supply voltage low: ended</source>
        <translation>Interne Versorgungsspannung zu niedrig: beendet</translation>
    </message>
    <message id="vx4400eventTemperatureHigh">
        <source>Device temperature high</source>
        <translation>Gerätetemperatur zu hoch</translation>
    </message>
    <message id="vx4400eventTemperatureHighOff">
        <source>Device temperature high: ended</source>
        <translation>Gerätetemperatur zu hoch: beendet</translation>
    </message>
    <message id="vx4400eventTemperatureLow">
        <source>Device temperature low</source>
        <translation>Gerätetemperatur zu niedrig</translation>
    </message>
    <message id="vx4400eventTemperatureLowOff">
        <source>Device temperature low: ended</source>
        <translation>Gerätetemperatur zu niedrig: beendet</translation>
    </message>
    <message id="vx4400eventCoverOpen">
        <source>Cover open</source>
        <translation>Gehäusedeckel offen</translation>
    </message>
    <message id="vx4400eventCoverOpenOff">
        <source>Cover open: ended</source>
        <translation>Gehäusedeckel offen: beendet</translation>
    </message>
    <message id="vx4400eventWatchdogReset">
        <source>Reset by watchdog</source>
        <translation>Neustart durch Watchdog</translation>
    </message>
    <message id="vx4400eventWatchdogResetOff">
        <source>Reset by watchdog: ended</source>
        <translation>Neustart durch Watchdog: beendet</translation>
    </message>
    <message id="vx4400eventTravelSensorFailure">
        <source>Travel sensor failure</source>
        <translation>Ausfall des Wegsensors</translation>
    </message>
    <message id="vx4400eventTravelSensorFailureOff">
        <source>Travel sensor failure: ended</source>
        <translation>Ausfall des Wegsensors: beendet</translation>
    </message>
    <message id="vx4400eventTravelOutOfRange">
        <source>Travel outside sensor range</source>
        <translation>Weg außerhalb des Messbereichs</translation>
    </message>
    <message id="vx4400eventTravelOutOfRangeOff">
        <source>Travel outside sensor range: ended</source>
        <translation>Weg außerhalb des Messbereichs: beendet</translation>
    </message>
    <message id="vx4400eventSupplySensorFailure">
        <source>Supply pressure sensor failure</source>
        <translation>Ausfall des Zuluftdrucksensors</translation>
    </message>
    <message id="vx4400eventSupplySensorFailureOff">
        <source>Supply pressure sensor failure: ended</source>
        <translation>Ausfall des Zuluftdrucksensors: beendet</translation>
    </message>
    <message id="vx4400eventActuatorSensorFailure">
        <source>Actuator pressure sensor failure</source>
        <translation>Ausfall des Antriebsdrucksensors</translation>
    </message>
    <message id="vx4400eventActuatorSensorFailureOff">
        <source>Actuator pressure sensor failure: ended</source>
        <translation>Ausfall des Antriebsdrucksensors: beendet</translation>
    </message>
    <message id="vx4400eventTemperatureSensorFailure">
        <source>Temperature sensor failure</source>
        <translation>Ausfall des Temperatursensors</translation>
    </message>
    <message id="vx4400eventTemperatureSensorFailureOff">
        <source>Temperature sensor failure: ended</source>
        <translation>Ausfall des Temperatursensors: beendet</translation>
    </message>
    <message id="vx4400eventSensorDrift">
        <source>Sensor drift</source>
        <translation>Sensordrift</translation>
    </message>
    <message id="vx4400eventSensorDriftOff">
        <source>Sensor drift: ended</source>
        <translation>Sensordrift: beendet</translation>
    </message>
    <message id="vx4400eventSupplyPressureLow">
        <source>Supply pressure low</source>
        <translation>Zuluftdruck zu niedrig</translation>
    </message>
    <message id="vx4400eventSupplyPressureLowOff">
        <source>Supply pressure low: ended</source>
        <translation>Zuluftdruck zu niedrig: beendet</translation>
    </message>
    <message id="vx4400eventSupplyPressureHigh">
        <source>Supply pressure high</source>
        <translation>Zuluftdruck zu hoch</translation>
    </message>
    <message id="vx4400eventSupplyPressureHighOff">
        <source>Supply pressure high: ended</source>
        <translation>Zuluftdruck zu hoch: beendet</translation>
    </message>
    <message id="vx4400eventSupplyPressureUnstable">
        <source>Supply pressure unstable</source>
        <translation>Zuluftdruck schwankt</translation>
    </message>
    <message id="vx4400eventSupplyPressureUnstableOff">
        <source>Supply pressure unstable: ended</source>
        <translation>Zuluftdruck schwankt: beendet</translation>
    </message>
    <message id="vx4400eventDriveSaturated">
        <source>Drive signal at its limit</source>
        <translation>Stellsignal an der Grenze</translation>
    </message>
    <message id="vx4400eventDriveSaturatedOff">
        <source>Drive signal at its limit: ended</source>
        <translation>Stellsignal an der Grenze: beendet</translation>
    </message>
    <message id="vx4400eventPneumaticLeak">
        <source>Pneumatic leak</source>
        <translation>Pneumatische Leckage</translation>
    </message>
    <message id="vx4400eventPneumaticLeakOff">
        <source>Pneumatic leak: ended</source>
        <translation>Pneumatische Leckage: beendet</translation>
    </message>
    <message id="vx4400eventPilotStageFailure">
        <source>Pilot stage failure</source>
        <translation>Ausfall der Vorsteuerstufe</translation>
    </message>
    <message id="vx4400eventPilotStageFailureOff">
        <source>Pilot stage failure: ended</source>
        <translation>Ausfall der Vorsteuerstufe: beendet</translation>
    </message>
    <message id="vx4400eventExhaustBlocked">
        <source>Exhaust blocked</source>
        <translation>Abluft blockiert</translation>
    </message>
    <message id="vx4400eventExhaustBlockedOff">
        <source>Exhaust blocked: ended</source>
        <translation>Abluft blockiert: beendet</translation>
    </message>
    <message id="vx4400eventTravelDeviation">
        <source>Travel deviation</source>
        <translation>Regelabweichung</translation>
    </message>
    <message id="vx4400eventTravelDeviationOff">
        <source>Travel deviation: ended</source>
        <translation>Regelabweichung: beendet</translation>
    </message>
    <message id="vx4400eventValveStuck">
        <source>Valve stuck</source>
        <translation>Ventil blockiert</translation>
    </message>
    <message id="vx4400eventValveStuckOff">
        <source>Valve stuck: ended</source>
        <translation>Ventil blockiert: beendet</translation>
    </message>
    <message id="vx4400eventFrictionHigh">
        <source>Friction high</source>
        <translation>Reibung zu hoch</translation>
    </message>
    <message id="vx4400eventFrictionHighOff">
        <source>Friction high: ended</source>
        <translation>Reibung zu hoch: beendet</translation>
    </message>
    <message id="vx4400eventFrictionLow">
        <source>Friction low</source>
        <translation>Reibung zu niedrig</translation>
    </message>
    <message id="vx4400eventFrictionLowOff">
        <source>Friction low: ended</source>
        <translation>Reibung zu niedrig: beendet</translation>
    </message>
    <message id="vx4400eventStickSlip">
        <source>Stick-slip motion</source>
        <translation>Ruckgleiten (Stick-Slip)</translation>
    </message>
    <message id="vx4400eventStickSlipOff">
        <source>Stick-slip motion: ended</source>
        <translation>Ruckgleiten (Stick-Slip): beendet</translation>
    </message>
    <message id="vx4400eventTravelHigh">
        <source>Travel high alarm</source>
        <translation>Wegalarm oben</translation>
    </message>
    <message id="vx4400eventTravelHighOff">
        <source>Travel high alarm: ended</source>
        <translation>Wegalarm oben: beendet</translation>
    </message>
    <message id="vx4400eventTravelLow">
        <source>Travel low alarm</source>
        <translation>Wegalarm unten</translation>
    </message>
    <message id="vx4400eventTravelLowOff">
        <source>Travel low alarm: ended</source>
        <translation>Wegalarm unten: beendet</translation>
    </message>
    <message id="vx4400eventCycleCounterLimit">
        <source>Cycle counter limit exceeded</source>
        <translation>Grenzwert des Zyklenzählers überschritten</translation>
    </message>
    <message id="vx4400eventCycleCounterLimitOff">
        <source>Cycle counter limit exceeded: ended</source>
        <translation>Grenzwert des Zyklenzählers überschritten: beendet</translation>
    </message>
    <message id="vx4400eventTravelSumLimit">
        <source>Total travel limit exceeded</source>
        <translation>Grenzwert der Wegsumme überschritten</translation>
    </message>
    <message id="vx4400eventTravelSumLimitOff">
        <source>Total travel limit exceeded: ended</source>
        <translation>Grenzwert der Wegsumme überschritten: beendet</translation>
    </message>
    <message id="vx4400eventSpringFailure">
        <source>Actuator spring failure</source>
        <translation>Bruch der Antriebsfeder</translation>
    </message>
    <message id="vx4400eventSpringFailureOff">
        <source>Actuator spring failure: ended</source>
        <translation>Bruch der Antriebsfeder: beendet</translation>
    </message>
    <message id="vx4400eventSeatWear">
        <source>Seat wear</source>
        <translation>Verschleiß des Sitzes</translation>
    </message>
    <message id="vx4400eventSeatWearOff">
        <source>Seat wear: ended</source>
        <translation>Verschleiß des Sitzes: beendet</translation>
    </message>
    <message id="vx4400eventPackingLeak">
        <source>Packing leak</source>
        <translation>Leckage der Stopfbuchse</translation>
    </message>
    <message id="vx4400eventPackingLeakOff">
        <source>Packing leak: ended</source>
        <translation>Leckage der Stopfbuchse: beendet</translation>
    </message>
    <message id="vx4400eventSignalLow">
        <source>Input signal low</source>
        <translation>Eingangssignal zu niedrig</translation>
    </message>
    <message id="vx4400eventSignalLowOff">
        <source>Input signal low: ended</source>
        <translation>Eingangssignal zu niedrig: beendet</translation>
    </message>
    <message id="vx4400eventSignalHigh">
        <source>Input signal high</source>
        <translation>Eingangssignal zu hoch</translation>
    </message>
    <message id="vx4400eventSignalHighOff">
        <source>Input signal high: ended</source>
        <translation>Eingangssignal zu hoch: beendet</translation>
    </message>
    <message id="vx4400eventSetpointOscillating">
        <source>Set point oscillates</source>
        <translation>Sollwert schwingt</translation>
    </message>
    <message id="vx4400eventSetpointOscillatingOff">
        <source>Set point oscillates: ended</source>
        <translation>Sollwert schwingt: beendet</translation>
    </message>
    <message id="vx4400eventCavitation">
        <source>Cavitation</source>
        <translation>Kavitation</translation>
    </message>
    <message id="vx4400eventCavitationOff">
        <source>Cavitation: ended</source>
        <translation>Kavitation: beendet</translation>
    </message>
    <message id="vx4400eventSafetyShutdown">
        <source>Safety shutdown active</source>
        <translation>Sicherheitsabschaltung aktiv</translation>
    </message>
    <message id="vx4400eventSafetyShutdownOff">
        <source>Safety shutdown active: ended</source>
        <translation>Sicherheitsabschaltung aktiv: beendet</translation>
    </message>
    <message id="vx4400eventStrokeTestFailed">
        <source>Stroke test failed</source>
        <translation>Hubtest fehlgeschlagen</translation>
    </message>
    <message id="vx4400eventStrokeTestFailedOff">
        <source>Stroke test failed: ended</source>
        <translation>Hubtest fehlgeschlagen: beendet</translation>
    </message>
    <message id="vx4400eventStrokeTestOverdue">
        <source>Stroke test overdue</source>
        <translation>Hubtest überfällig</translation>
    </message>
    <message id="vx4400eventStrokeTestOverdueOff">
        <source>Stroke test overdue: ended</source>
        <translation>Hubtest überfällig: beendet</translation>
    </message>
    <message id="vx4400eventSimulationActive">
        <source>Simulation active</source>
        <translation>Simulation aktiv</translation>
    </message>
    <message id="vx4400eventSimulationActiveOff">
        <source>Simulation active: ended</source>
        <translation>Simulation aktiv: beendet</translation>
    </message>
    <message id="vx4400eventLocalOperation">
        <source>Local operation</source>
        <translation>Vor-Ort-Bedienung</translation>
    </message>
    <message id="vx4400eventLocalOperationOff">
        <source>Local operation: ended</source>
        <translation>Vor-Ort-Bedienung: beendet</translation>
    </message>
    <message id="vx4400eventLoopCurrentFixed">
        <source>Loop current fixed</source>
        <translation>Schleifenstrom fest eingestellt</translation>
    </message>
    <message id="vx4400eventLoopCurrentFixedOff">
        <source>Loop current fixed: ended</source>
        <translation>Schleifenstrom fest eingestellt: beendet</translation>
    </message>
    <message id="vx4400eventBusTimeout">
        <source>Bus communication interrupted</source>
        <translation>Buskommunikation unterbrochen</translation>
    </message>
    <message id="vx4400eventBusTimeoutOff">
        <source>Bus communication interrupted: ended</source>
        <translation>Buskommunikation unterbrochen: beendet</translation>
    </message>
    <message id="vx4400eventNotCalibrated">
        <source>Travel not calibrated</source>
        <translation>Weg nicht kalibriert</translation>
    </message>
    <message id="vx4400eventNotCalibratedOff">
        <source>Travel not calibrated: ended</source>
        <translation>Weg nicht kalibriert: beendet</translation>
    </message>
    <message id="vx4400eventCalibrationRunning">
        <source>Calibration running</source>
        <translation>Kalibrierung läuft</translation>
    </message>
    <message id="vx4400eventCalibrationRunningOff">
        <source>Calibration running: ended</source>
        <translation>Kalibrierung läuft: beendet</translation>
    </message>
    <message id="vx4400eventWriteProtected">
        <source>Write protection on</source>
        <translation>Schreibschutz aktiv</translation>
    </message>
    <message id="vx4400eventWriteProtectedOff">
        <source>Write protection on: ended</source>
        <translation>Schreibschutz aktiv: beendet</translation>
    </message>
    <message id="vx4400eventMaintenanceDue">
        <source>Maintenance due</source>
        <translation>Wartung fällig</translation>
    </message>
    <message id="vx4400eventMaintenanceDueOff">
        <source>Maintenance due: ended</source>
        <translation>Wartung fällig: beendet</translation>
    </message>
    <message id="vx4400eventMasks">
        <source>Status configuration</source>
        <translation>Statuskonfiguration</translation>
    </message>
    <message id="vx4400eventMasksOff">
        <source>Status configuration: ended</source>
        <translation>Statuskonfiguration: beendet</translation>
    </message>
    <message id="vx4400eventMask1">
        <source>Status mask, part 1</source>
        <translation>Statusmaske, Teil 1</translation>
    </message>
    <message id="vx4400eventMask1Off">
        <source>Status mask, part 1: ended</source>
        <translation>Statusmaske, Teil 1: beendet</translation>
    </message>
    <message id="vx4400eventMaskInfo1">
        <source>Information mask, part 1</source>
        <translation>Maske Information, Teil 1</translation>
    </message>
    <message id="vx4400eventMaskInfo1Off">
        <source>Information mask, part 1: ended</source>
        <translation>Maske Information, Teil 1: beendet</translation>
    </message>
    <message id="vx4400eventMaskWarning1">
        <source>Warning mask, part 1</source>
        <translation>Maske Warnung, Teil 1</translation>
    </message>
    <message id="vx4400eventMaskWarning1Off">
        <source>Warning mask, part 1: ended</source>
        <translation>Maske Warnung, Teil 1: beendet</translation>
    </message>
    <message id="vx4400eventMaskAlarm1">
        <source>Alarm mask, part 1</source>
        <translation>Maske Alarm, Teil 1</translation>
    </message>
    <message id="vx4400eventMaskAlarm1Off">
        <source>Alarm mask, part 1: ended</source>
        <translation>Maske Alarm, Teil 1: beendet</translation>
    </message>
    <message id="vx4400eventMaskOnOff1">
        <source>On/off mask, part 1</source>
        <translation>Ein/Aus-Maske, Teil 1</translation>
    </message>
    <message id="vx4400eventMaskOnOff1Off">
        <source>On/off mask, part 1: ended</source>
        <translation>Ein/Aus-Maske, Teil 1: beendet</translation>
    </message>
    <message id="vx4400eventMask2">
        <source>Status mask, part 2</source>
        <translation>Statusmaske, Teil 2</translation>
    </message>
    <message id="vx4400eventMask2Off">
        <source>Status mask, part 2: ended</source>
        <translation>Statusmaske, Teil 2: beendet</translation>
    </message>
    <message id="vx4400eventMaskInfo2">
        <source>Information mask, part 2</source>
        <translation>Maske Information, Teil 2</translation>
    </message>
    <message id="vx4400eventMaskInfo2Off">
        <source>Information mask, part 2: ended</source>
        <translation>Maske Information, Teil 2: beendet</translation>
    </message>
    <message id="vx4400eventMaskWarning2">
        <source>Warning mask, part 2</source>
        <translation>Maske Warnung, Teil 2</translation>
    </message>
    <message id="vx4400eventMaskWarning2Off">
        <source>Warning mask, part 2: ended</source>
        <translation>Maske Warnung, Teil 2: beendet</translation>
    </message>
    <message id="vx4400eventMaskAlarm2">
        <source>Alarm mask, part 2</source>
        <translation>Maske Alarm, Teil 2</translation>
    </message>
    <message id="vx4400eventMaskAlarm2Off">
        <source>Alarm mask, part 2: ended</source>
        <translation>Maske Alarm, Teil 2: beendet</translation>
    </message>
    <message id="vx4400eventMaskOnOff2">
        <source>On/off mask, part 2</source>
        <translation>Ein/Aus-Maske, Teil 2</translation>
    </message>
    <message id="vx4400eventMaskOnOff2Off">
        <source>On/off mask, part 2: ended</source>
        <translation>Ein/Aus-Maske, Teil 2: beendet</translation>
    </message>
    <message id="vx4400eventMask3">
        <source>Status mask, part 3</source>
        <translation>Statusmaske, Teil 3</translation>
    </message>
    <message id="vx4400eventMask3Off">
        <source>Status mask, part 3: ended</source>
        <translation>Statusmaske, Teil 3: beendet</translation>
    </message>
    <message id="vx4400eventMaskInfo3">
        <source>Information mask, part 3</source>
        <translation>Maske Information, Teil 3</translation>
    </message>
    <message id="vx4400eventMaskInfo3Off">
        <source>Information mask, part 3: ended</source>
        <translation>Maske Information, Teil 3: beendet</translation>
    </message>
    <message id="vx4400eventMaskWarning3">
        <source>Warning mask, part 3</source>
        <translation>Maske Warnung, Teil 3</translation>
    </message>
    <message id="vx4400eventMaskWarning3Off">
        <source>Warning mask, part 3: ended</source>
        <translation>Maske Warnung, Teil 3: beendet</translation>
    </message>
    <message id="vx4400eventMaskAlarm3">
        <source>Alarm mask, part 3</source>
        <translation>Maske Alarm, Teil 3</translation>
    </message>
    <message id="vx4400eventMaskAlarm3Off">
        <source>Alarm mask, part 3: ended</source>
        <translation>Maske Alarm, Teil 3: beendet</translation>
    </message>
    <message id="vx4400eventMaskOnOff3">
        <source>On/off mask, part 3</source>
        <translation>Ein/Aus-Maske, Teil 3</translation>
    </message>
    <message id="vx4400eventMaskOnOff3Off">
        <source>On/off mask, part 3: ended</source>
        <translation>Ein/Aus-Maske, Teil 3: beendet</translation>
    </message>
    <message id="statusNotRead">
        <source>not read yet</source>
        <translation>noch nicht gelesen</translation>
    </message>
    <message id="statusActive">
        <source>active</source>
        <translation>aktiv</translation>
    </message>
    <message id="statusNotActive">
        <source>not active</source>
        <translation>nicht aktiv</translation>
    </message>
    <message id="statusSwitchedOff">
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message id="statusUnknown">
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message id="shell_sectionLiveValues">
        <source>Live values</source>
        <translation>Aktuelle Werte</translation>
    </message>
    <message id="shell_sectionLimits">
        <source>Limits of the diagnosis</source>
        <translation>Grenzwerte der Diagnose</translation>
    </message>
    <message id="liveValues">
        <source>Live values</source>
        <translation>Aktuelle Werte</translation>
    </message>
    <message id="diagnosisLimits">
        <source>Diagnosis limits</source>
        <translation>Grenzwerte der Diagnose</translation>
    </message>
    <message id="failsafeAction">
        <source>On loss of signal</source>
        <translation>Bei Signalausfall</translation>
    </message>
    <message id="failsafeDelay">
        <source>Delay of this action</source>
        <translation>Verzögerung dieser Aktion</translation>
    </message>
    <message id="serviceInterval">
        <source>Service interval</source>
        <translation>Wartungsintervall</translation>
    </message>
    <message id="options">
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message id="shell_pageOptions">
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message id="shell_sectionFailsafe">
        <source>Fail-safe behaviour and service</source>
        <translation>Fehlerverhalten und Wartung</translation>
    </message>
    <message id="shell_sectionAlarmMask">
        <source>Monitoring</source>
        <translation>Überwachung</translation>
    </message>
    <message id="shell_settings">
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message id="shell_settingsTip">
        <source>Language, display units and classification</source>
        <translation>Sprache, Anzeigeeinheiten und Klassifizierung</translation>
    </message>
    <message id="shell_restartDevice">
        <source>Restart &amp;device</source>
        <translation>&amp;Gerät neu starten</translation>
    </message>
    <message id="shell_restartDeviceTip">
        <source>The power of the simulated device goes and comes back</source>
        <translation>Die Versorgung des simulierten Geräts fällt aus und kehrt zurück</translation>
    </message>
    <message id="shell_simulationMeter">
        <source>Meter in the loop</source>
        <translation>Messgerät in der Schleife</translation>
    </message>
    <message id="shell_addressRefused">
        <source>The device did not take the address.</source>
        <translation>Das Gerät hat die Adresse nicht angenommen.</translation>
    </message>
    <message id="shell_addressChanged">
        <source>The device has the address %1 now.</source>
        <translation>Das Gerät hat jetzt die Adresse %1.</translation>
    </message>
    <message id="shell_documentKept">
        <source>The bus configuration was saved.</source>
        <translation>Die Buskonfiguration wurde gespeichert.</translation>
    </message>
    <message id="paTag">
        <source>Tag</source>
        <translation>Messstellenkennzeichen</translation>
    </message>
    <message id="busAddress">
        <source>Bus address</source>
        <translation>Busadresse</translation>
    </message>
</context>
</TS>
