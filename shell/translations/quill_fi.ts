<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi">
<context>
    <name></name>
    <message id="manufacturer">
        <source>Manufacturer</source>
        <translation>Valmistaja</translation>
    </message>
    <message id="deviceModel">
        <source>Device model</source>
        <translation>Laitemalli</translation>
    </message>
    <message id="deviceId">
        <source>Device identifier</source>
        <translation>Laitetunniste</translation>
    </message>
    <message id="serialNumber">
        <source>Serial number</source>
        <translation>Sarjanumero</translation>
    </message>
    <message id="hardwareRevision">
        <source>Hardware revision</source>
        <translation>Laiteversio</translation>
    </message>
    <message id="softwareRevision">
        <source>Software revision</source>
        <translation>Ohjelmistoversio</translation>
    </message>
    <message id="tag">
        <source>Tag</source>
        <translation>Positio</translation>
    </message>
    <message id="longTag">
        <source>Long tag</source>
        <translation>Pitkä positio</translation>
    </message>
    <message id="descriptor">
        <source>Descriptor</source>
        <translation>Kuvaus</translation>
    </message>
    <message id="message">
        <source>Message</source>
        <translation>Viesti</translation>
    </message>
    <message id="installationDate">
        <source>Installation date</source>
        <translation>Asennuspäivä</translation>
    </message>
    <message id="finalAssemblyNumber">
        <source>Final assembly number</source>
        <translation>Loppukokoonpanonumero</translation>
    </message>
    <message id="pollingAddress">
        <source>Polling address</source>
        <translation>Kyselyosoite</translation>
    </message>
    <message id="valveType">
        <source>Valve type</source>
        <translation>Venttiilityyppi</translation>
    </message>
    <message id="actuatorType">
        <source>Actuator type</source>
        <translation>Toimilaitteen tyyppi</translation>
    </message>
    <message id="ratedTravel">
        <source>Rated travel</source>
        <translation>Nimellisiskunpituus</translation>
    </message>
    <message id="gearFactor">
        <source>Gear factor</source>
        <translation>Välityskerroin</translation>
    </message>
    <message id="travelLowLimit">
        <source>Travel limit, low</source>
        <translation>Liikkeen alaraja</translation>
    </message>
    <message id="travelHighLimit">
        <source>Travel limit, high</source>
        <translation>Liikkeen yläraja</translation>
    </message>
    <message id="openingTime">
        <source>Opening time</source>
        <translation>Avautumisaika</translation>
    </message>
    <message id="closingTime">
        <source>Closing time</source>
        <translation>Sulkeutumisaika</translation>
    </message>
    <message id="supplyPressure">
        <source>Supply pressure</source>
        <translation>Syöttöpaine</translation>
    </message>
    <message id="supplyLowPressure">
        <source>Supply pressure limit, low</source>
        <translation>Syöttöpaineen alaraja</translation>
    </message>
    <message id="supplyHighPressure">
        <source>Supply pressure limit, high</source>
        <translation>Syöttöpaineen yläraja</translation>
    </message>
    <message id="actuatorPressure">
        <source>Actuator pressure</source>
        <translation>Toimilaitteen paine</translation>
    </message>
    <message id="ambientAbsolutePressure">
        <source>Ambient pressure</source>
        <translation>Ympäristön paine</translation>
    </message>
    <message id="signalDirection">
        <source>Signal direction</source>
        <translation>Signaalin suunta</translation>
    </message>
    <message id="signalLowCurrent">
        <source>Signal range, low</source>
        <translation>Signaalialueen alku</translation>
    </message>
    <message id="signalHighCurrent">
        <source>Signal range, high</source>
        <translation>Signaalialueen loppu</translation>
    </message>
    <message id="characteristic">
        <source>Characteristic</source>
        <translation>Ominaiskäyrä</translation>
    </message>
    <message id="curveInput_1">
        <source>Curve input 1</source>
        <translation>Käyrän tulo 1</translation>
    </message>
    <message id="curveOutput_1">
        <source>Curve output 1</source>
        <translation>Käyrän lähtö 1</translation>
    </message>
    <message id="curveInput_2">
        <source>Curve input 2</source>
        <translation>Käyrän tulo 2</translation>
    </message>
    <message id="curveOutput_2">
        <source>Curve output 2</source>
        <translation>Käyrän lähtö 2</translation>
    </message>
    <message id="filterTime">
        <source>Filter time</source>
        <translation>Suodatusaika</translation>
    </message>
    <message id="tuningSet">
        <source>Tuning set</source>
        <translation>Viritysasetus</translation>
    </message>
    <message id="proportionalGain">
        <source>Proportional gain</source>
        <translation>Suhdevahvistus</translation>
    </message>
    <message id="integralTime">
        <source>Integral time</source>
        <translation>Integrointiaika</translation>
    </message>
    <message id="derivativeTime">
        <source>Derivative time</source>
        <translation>Derivointiaika</translation>
    </message>
    <message id="travelDeadband">
        <source>Travel deadband</source>
        <translation>Liikkeen kuollut alue</translation>
    </message>
    <message id="alarmMask">
        <source>Active alarms</source>
        <translation>Käytössä olevat hälytykset</translation>
    </message>
    <message id="alarmHighTravel">
        <source>Travel alarm, high</source>
        <translation>Liikkeen ylähälytys</translation>
    </message>
    <message id="alarmLowTravel">
        <source>Travel alarm, low</source>
        <translation>Liikkeen alahälytys</translation>
    </message>
    <message id="alarmHighAction">
        <source>Action on high alarm</source>
        <translation>Toiminto ylähälytyksessä</translation>
    </message>
    <message id="alarmLowAction">
        <source>Action on low alarm</source>
        <translation>Toiminto alahälytyksessä</translation>
    </message>
    <message id="alarmHighAction_2">
        <source>Action on second high alarm</source>
        <translation>Toiminto toisessa ylähälytyksessä</translation>
    </message>
    <message id="alarmHighTemperature">
        <source>Temperature alarm, high</source>
        <translation>Lämpötilan ylähälytys</translation>
    </message>
    <message id="alarmLowTemperature">
        <source>Temperature alarm, low</source>
        <translation>Lämpötilan alahälytys</translation>
    </message>
    <message id="alarmLatchMode">
        <source>Alarm latching</source>
        <translation>Hälytysten lukitus</translation>
    </message>
    <message id="burstMode">
        <source>Burst mode</source>
        <translation>Purskelähetys</translation>
    </message>
    <message id="burstCommand">
        <source>Burst command</source>
        <translation>Purskekomento</translation>
    </message>
    <message id="burstVariable_1">
        <source>Burst variable 1</source>
        <translation>Purskemuuttuja 1</translation>
    </message>
    <message id="burstVariable_2">
        <source>Burst variable 2</source>
        <translation>Purskemuuttuja 2</translation>
    </message>
    <message id="minimumBurstPeriod">
        <source>Burst period, minimum</source>
        <translation>Purskejakso vähintään</translation>
    </message>
    <message id="maximumBurstPeriod">
        <source>Burst period, maximum</source>
        <translation>Purskejakso enintään</translation>
    </message>
    <message id="secondaryOutput">
        <source>Secondary output</source>
        <translation>Toissijainen lähtö</translation>
    </message>
    <message id="outputFailureCurrent">
        <source>Output current on failure</source>
        <translation>Lähtövirta vikatilassa</translation>
    </message>
    <message id="writeProtectionMode">
        <source>Write protection</source>
        <translation>Kirjoitussuojaus</translation>
    </message>
    <message id="maintenanceDate">
        <source>Next maintenance</source>
        <translation>Seuraava huolto</translation>
    </message>
    <message id="dailyTestTime">
        <source>Time of the daily test</source>
        <translation>Päivittäisen testin kellonaika</translation>
    </message>
    <message id="strokeTestInterval">
        <source>Interval of the stroke test</source>
        <translation>Iskutestin aikaväli</translation>
    </message>
    <message id="deviceTemperature">
        <source>Device temperature</source>
        <translation>Laitteen lämpötila</translation>
    </message>
    <message id="maximumTemperature">
        <source>Highest temperature</source>
        <translation>Korkein lämpötila</translation>
    </message>
    <message id="minimumTemperature">
        <source>Lowest temperature</source>
        <translation>Matalin lämpötila</translation>
    </message>
    <message id="operatingTime">
        <source>Operating time</source>
        <translation>Käyttöaika</translation>
    </message>
    <message id="cycleCounter">
        <source>Valve cycles</source>
        <translation>Venttiilin työkierrot</translation>
    </message>
    <message id="globeValve">
        <source>Globe valve</source>
        <translation>Istukkaventtiili</translation>
    </message>
    <message id="ballValve">
        <source>Ball valve</source>
        <translation>Palloventtiili</translation>
    </message>
    <message id="butterflyValve">
        <source>Butterfly valve</source>
        <translation>Läppäventtiili</translation>
    </message>
    <message id="rotaryPlugValve">
        <source>Rotary plug valve</source>
        <translation>Segmenttiventtiili</translation>
    </message>
    <message id="singleActing">
        <source>Single acting</source>
        <translation>Yksitoiminen</translation>
    </message>
    <message id="doubleActing">
        <source>Double acting</source>
        <translation>Kaksitoiminen</translation>
    </message>
    <message id="gearDirect">
        <source>Direct</source>
        <translation>Suora</translation>
    </message>
    <message id="gearDouble">
        <source>Double</source>
        <translation>Kaksinkertainen</translation>
    </message>
    <message id="gearFourfold">
        <source>Fourfold</source>
        <translation>Nelinkertainen</translation>
    </message>
    <message id="signalOpens">
        <source>Rising signal opens</source>
        <translation>Kasvava signaali avaa</translation>
    </message>
    <message id="signalCloses">
        <source>Rising signal closes</source>
        <translation>Kasvava signaali sulkee</translation>
    </message>
    <message id="linear">
        <source>Linear</source>
        <translation>Lineaarinen</translation>
    </message>
    <message id="equalPercentage">
        <source>Equal percentage</source>
        <translation>Tasaprosenttinen</translation>
    </message>
    <message id="quickOpening">
        <source>Quick opening</source>
        <translation>Nopeasti avautuva</translation>
    </message>
    <message id="userCurve">
        <source>User-defined</source>
        <translation>Käyttäjän määrittämä</translation>
    </message>
    <message id="tuningSlow">
        <source>Slow</source>
        <translation>Hidas</translation>
    </message>
    <message id="tuningNormal">
        <source>Normal</source>
        <translation>Normaali</translation>
    </message>
    <message id="tuningFast">
        <source>Fast</source>
        <translation>Nopea</translation>
    </message>
    <message id="tuningUser">
        <source>User-tuned</source>
        <translation>Käyttäjän viritys</translation>
    </message>
    <message id="noAction">
        <source>No action</source>
        <translation>Ei toimintoa</translation>
    </message>
    <message id="alarmOnly">
        <source>Alarm only</source>
        <translation>Vain hälytys</translation>
    </message>
    <message id="moveOpen">
        <source>Move open</source>
        <translation>Aja auki</translation>
    </message>
    <message id="moveClosed">
        <source>Move closed</source>
        <translation>Aja kiinni</translation>
    </message>
    <message id="holdPosition">
        <source>Hold position</source>
        <translation>Pidä asento</translation>
    </message>
    <message id="off">
        <source>Off</source>
        <translation>Pois</translation>
    </message>
    <message id="on">
        <source>On</source>
        <translation>Päällä</translation>
    </message>
    <message id="variableTravel">
        <source>Valve travel</source>
        <translation>Venttiilin liike</translation>
    </message>
    <message id="variableSetpoint">
        <source>Setpoint</source>
        <translation>Asetusarvo</translation>
    </message>
    <message id="variablePressure">
        <source>Actuator pressure</source>
        <translation>Toimilaitteen paine</translation>
    </message>
    <message id="variableTemperature">
        <source>Device temperature</source>
        <translation>Laitteen lämpötila</translation>
    </message>
    <message id="commandPrimary">
        <source>1: primary variable</source>
        <translation>1: ensisijainen muuttuja</translation>
    </message>
    <message id="commandCurrent">
        <source>2: current and percent</source>
        <translation>2: virta ja prosentti</translation>
    </message>
    <message id="commandDynamic">
        <source>3: dynamic variables</source>
        <translation>3: dynaamiset muuttujat</translation>
    </message>
    <message id="commandStatus">
        <source>9: variables with status</source>
        <translation>9: muuttujat ja tila</translation>
    </message>
    <message id="outputCurrent">
        <source>Output current</source>
        <translation>Lähtövirta</translation>
    </message>
    <message id="outputSwitch">
        <source>Limit switch</source>
        <translation>Rajakytkin</translation>
    </message>
    <message id="Not In Use">
        <source>Not In Use</source>
        <translation>Ei käytössä</translation>
    </message>
    <message id="maskTravel">
        <source>Travel</source>
        <translation>Liike</translation>
    </message>
    <message id="maskPressure">
        <source>Supply pressure</source>
        <translation>Syöttöpaine</translation>
    </message>
    <message id="maskTemperature">
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message id="maskSignal">
        <source>Input signal</source>
        <translation>Tulosignaali</translation>
    </message>
    <message id="maskFriction">
        <source>Friction</source>
        <translation>Kitka</translation>
    </message>
    <message id="identification">
        <source>Identification</source>
        <translation>Tunnistetiedot</translation>
    </message>
    <message id="diagnostics">
        <source>Diagnostics</source>
        <translation>Diagnostiikka</translation>
    </message>
    <message id="assembly">
        <source>Assembly</source>
        <translation>Kokoonpano</translation>
    </message>
    <message id="pressure">
        <source>Pressure</source>
        <translation>Paine</translation>
    </message>
    <message id="signal">
        <source>Input signal</source>
        <translation>Tulosignaali</translation>
    </message>
    <message id="tuning">
        <source>Tuning</source>
        <translation>Viritys</translation>
    </message>
    <message id="alarms">
        <source>Alarms</source>
        <translation>Hälytykset</translation>
    </message>
    <message id="burst">
        <source>Burst</source>
        <translation>Purske</translation>
    </message>
    <message id="output">
        <source>Output</source>
        <translation>Lähtö</translation>
    </message>
    <message id="maintenance">
        <source>Maintenance</source>
        <translation>Huolto</translation>
    </message>
    <message id="absolutePressure">
        <source>Absolute pressure</source>
        <translation>Absoluuttinen paine</translation>
    </message>
    <message id="temperature">
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message id="temperatureDifference">
        <source>Temperature difference</source>
        <translation>Lämpötilaero</translation>
    </message>
    <message id="travel">
        <source>Travel</source>
        <translation>Asema</translation>
    </message>
    <message id="length">
        <source>Length</source>
        <translation>Pituus</translation>
    </message>
    <message id="angle">
        <source>Angle</source>
        <translation>Kulma</translation>
    </message>
    <message id="time">
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message id="frequency">
        <source>Frequency</source>
        <translation>Taajuus</translation>
    </message>
    <message id="current">
        <source>Current</source>
        <translation>Virta</translation>
    </message>
    <message id="voltage">
        <source>Voltage</source>
        <translation>Jännite</translation>
    </message>
    <message id="resistance">
        <source>Resistance</source>
        <translation>Vastus</translation>
    </message>
    <message id="flow">
        <source>Flow</source>
        <translation>Virtaus</translation>
    </message>
    <message id="massFlow">
        <source>Mass flow</source>
        <translation>Massavirta</translation>
    </message>
    <message id="volume">
        <source>Volume</source>
        <translation>Tilavuus</translation>
    </message>
    <message id="weight">
        <source>Weight</source>
        <translation>Paino</translation>
    </message>
    <message id="density">
        <source>Density</source>
        <translation>Tiheys</translation>
    </message>
    <message id="speed">
        <source>Speed</source>
        <translation>Nopeus</translation>
    </message>
    <message id="force">
        <source>Force</source>
        <translation>Voima</translation>
    </message>
    <message id="torque">
        <source>Torque</source>
        <translation>Vääntömomentti</translation>
    </message>
    <message id="power">
        <source>Power</source>
        <translation>Teho</translation>
    </message>
    <message id="changeConfirm">
        <source>Confirm changes</source>
        <translation>Vahvista muutokset</translation>
    </message>
    <message id="parameter">
        <source>Parameter</source>
        <translation>Parametri</translation>
    </message>
    <message id="valueOld">
        <source>Old value</source>
        <translation>Vanha arvo</translation>
    </message>
    <message id="valueNew">
        <source>New value</source>
        <translation>Uusi arvo</translation>
    </message>
    <message id="showAllParameters">
        <source>Show also non-modified values</source>
        <translation>Näytä myös muuttumattomat arvot</translation>
    </message>
    <message id="accept">
        <source>Accept</source>
        <translation>Hyväksy</translation>
    </message>
    <message id="download">
        <source>Download</source>
        <translation>Lataa laitteeseen</translation>
    </message>
    <message id="unSelect">
        <source>Unselect</source>
        <translation>Poista valinnat</translation>
    </message>
    <message id="close">
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message id="languageSelection">
        <source>Select language</source>
        <translation>Valitse kieli</translation>
    </message>
    <message id="statusClassificationSelection">
        <source>Select status classification</source>
        <translation>Valitse tilaluokitus</translation>
    </message>
    <message id="statusSeverity">
        <source>Severity</source>
        <translation>Vakavuus</translation>
    </message>
    <message id="statusNAMUR">
        <source>NAMUR</source>
        <translation>NAMUR</translation>
    </message>
    <message id="selectUnits">
        <source>Select units</source>
        <translation>Valitse yksiköt</translation>
    </message>
    <message id="changeAllUnits">
        <source>Change all parameters into</source>
        <translation>Muuta kaikki parametrit</translation>
    </message>
    <message id="siUnits">
        <source>SI units</source>
        <translation>SI-yksiköihin</translation>
    </message>
    <message id="usUnits">
        <source>US units</source>
        <translation>US-yksiköihin</translation>
    </message>
    <message id="ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message id="apply">
        <source>Apply</source>
        <translation>Käytä</translation>
    </message>
    <message id="none">
        <source>None</source>
        <translation>Ei mitään</translation>
    </message>
    <message id="yes">
        <source>Yes</source>
        <translation>Kyllä</translation>
    </message>
    <message id="no">
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message id="Inappropriate input">
        <source>Inappropriate input</source>
        <translation>Sopimaton syöte</translation>
    </message>
    <message id="missingItems">
        <source>The device does not have these parameters:</source>
        <translation>Laitteessa ei ole näitä parametreja:</translation>
    </message>
    <message id="commandIsNotImplemented">
        <source>The device does not know this command.</source>
        <translation>Laite ei tunne tätä komentoa.</translation>
    </message>
    <message id="communicationError">
        <source>The device does not answer. Check the connection and read again.</source>
        <translation>Laite ei vastaa. Tarkista yhteys ja lue uudelleen.</translation>
    </message>
    <message id="errCommunicationError">
        <source>Communication with the device failed. Check the connection and try again.</source>
        <translation>Tiedonsiirto laitteen kanssa epäonnistui. Tarkista yhteys ja yritä uudelleen.</translation>
    </message>
    <message id="hartCmdErrSuspiciousCalibration">
        <source>The device refused: the calibration looks wrong. Check the travel limits and calibrate again.</source>
        <translation>Laite hylkäsi pyynnön: kalibrointi näyttää virheelliseltä. Tarkista liikerajat ja kalibroi uudelleen.</translation>
    </message>
    <message id="hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed">
        <source>The device refused: the recipe is not calibrated, or the pulp type is not allowed.</source>
        <translation>Laite hylkäsi pyynnön: reseptiä ei ole kalibroitu tai massalaji ei ole sallittu.</translation>
    </message>
    <message id="hartCmdErrNoDataAvailable">
        <source>The device has no data of this kind yet.</source>
        <translation>Laitteessa ei ole vielä tällaisia tietoja.</translation>
    </message>
    <message id="hartCmdErrInvalidSelection">
        <source>The device did not take these values. Enter other values:</source>
        <translation>Laite ei hyväksynyt näitä arvoja. Anna muut arvot:</translation>
    </message>
    <message id="hartCmdErrAccessRestricted">
        <source>These parameters can only be read:</source>
        <translation>Näitä parametreja voi vain lukea:</translation>
    </message>
    <message id="errTestDataNoDataError">
        <source>There is no test data.</source>
        <translation>Testitietoja ei ole.</translation>
    </message>
    <message id="noDialogs">
        <source>The system does not allow dialogs here.</source>
        <translation>Järjestelmä ei salli valintaikkunoita tässä.</translation>
    </message>
    <message id="noFileSelectionDialog">
        <source>Files cannot be chosen here. The file is %1</source>
        <translation>Tiedostoja ei voi valita tässä. Tiedosto on %1</translation>
    </message>
    <message id="reading">
        <source>Reading from the device</source>
        <translation>Luetaan laitteesta</translation>
    </message>
    <message id="writing">
        <source>Writing to the device</source>
        <translation>Kirjoitetaan laitteeseen</translation>
    </message>
    <message id="pleaseCheckTheValues">
        <source>Please check the values.</source>
        <translation>Tarkista arvot.</translation>
    </message>
    <message id="configuration">
        <source>Configuration</source>
        <translation>Määritykset</translation>
    </message>
    <message id="infoCharacteristic">
        <source>How travel follows the input signal</source>
        <translation>Miten liike seuraa tulosignaalia</translation>
    </message>
    <message id="infoCharacteristic_linear">
        <source>Travel is proportional to the signal.</source>
        <translation>Liike on suoraan verrannollinen signaaliin.</translation>
    </message>
    <message id="infoCharacteristic_equalPercentage">
        <source>Equal steps of the signal change the flow by equal percentages.</source>
        <translation>Yhtä suuret signaalin askeleet muuttavat virtausta saman prosenttimäärän.</translation>
    </message>
    <message id="infoCharacteristic_quickOpening">
        <source>The valve opens fast at the start of the signal range.</source>
        <translation>Venttiili avautuu nopeasti signaalialueen alussa.</translation>
    </message>
    <message id="infoCharacteristic_userCurve">
        <source>Travel follows the points of the curve.</source>
        <translation>Liike seuraa käyrän pisteitä.</translation>
    </message>
    <message id="shell_title">
        <source>Quill – %1</source>
        <translation>Quill – %1</translation>
    </message>
    <message id="shell_titleModified">
        <source>Quill – %1 (not saved)</source>
        <translation>Quill – %1 (tallentamatta)</translation>
    </message>
    <message id="shell_sampleName">
        <source>sample %1</source>
        <translation>esimerkki %1</translation>
    </message>
    <message id="shell_menuFile">
        <source>&amp;File</source>
        <translation>&amp;Tiedosto</translation>
    </message>
    <message id="shell_menuDevice">
        <source>&amp;Device</source>
        <translation>&amp;Laite</translation>
    </message>
    <message id="shell_menuView">
        <source>&amp;View</source>
        <translation>&amp;Näytä</translation>
    </message>
    <message id="shell_menuHelp">
        <source>&amp;Help</source>
        <translation>&amp;Ohje</translation>
    </message>
    <message id="shell_open">
        <source>&amp;Open…</source>
        <translation>&amp;Avaa…</translation>
    </message>
    <message id="shell_openTip">
        <source>Opens a datafile</source>
        <translation>Avaa laitetiedoston</translation>
    </message>
    <message id="shell_openSample">
        <source>Open a &amp;sample</source>
        <translation>Avaa &amp;esimerkki</translation>
    </message>
    <message id="shell_openSampleTip">
        <source>Opens the datafile of a sample device</source>
        <translation>Avaa esimerkkilaitteen tiedoston</translation>
    </message>
    <message id="shell_save">
        <source>&amp;Save</source>
        <translation>&amp;Tallenna</translation>
    </message>
    <message id="shell_saveTip">
        <source>Saves the datafile</source>
        <translation>Tallentaa laitetiedoston</translation>
    </message>
    <message id="shell_saveAs">
        <source>Save &amp;as…</source>
        <translation>Tallenna &amp;nimellä…</translation>
    </message>
    <message id="shell_quit">
        <source>&amp;Quit</source>
        <translation>&amp;Lopeta</translation>
    </message>
    <message id="shell_datafiles">
        <source>Datafiles</source>
        <translation>Laitetiedostot</translation>
    </message>
    <message id="shell_allFiles">
        <source>All files</source>
        <translation>Kaikki tiedostot</translation>
    </message>
    <message id="shell_online">
        <source>Online</source>
        <translation>Yhdistetty</translation>
    </message>
    <message id="shell_offline">
        <source>Offline</source>
        <translation>Ei yhteyttä</translation>
    </message>
    <message id="shell_connect">
        <source>&amp;Connect</source>
        <translation>&amp;Yhdistä</translation>
    </message>
    <message id="shell_connectTip">
        <source>Connects to the device or disconnects</source>
        <translation>Yhdistää laitteeseen tai katkaisee yhteyden</translation>
    </message>
    <message id="shell_transferRuns">
        <source>Communication is running. Editing is barred meanwhile.</source>
        <translation>Tiedonsiirto on käynnissä. Muokkaus on sillä välin estetty.</translation>
    </message>
    <message id="shell_readPage">
        <source>&amp;Read this page</source>
        <translation>&amp;Lue tämä sivu</translation>
    </message>
    <message id="shell_readPageTip">
        <source>Reads the parameters of this page from the device</source>
        <translation>Lukee tämän sivun parametrit laitteesta</translation>
    </message>
    <message id="shell_readAll">
        <source>Read &amp;all</source>
        <translation>Lue &amp;kaikki</translation>
    </message>
    <message id="shell_readAllTip">
        <source>Reads all parameters from the device</source>
        <translation>Lukee kaikki parametrit laitteesta</translation>
    </message>
    <message id="shell_changes">
        <source>&amp;Changes…</source>
        <translation>&amp;Muutokset…</translation>
    </message>
    <message id="shell_changesTip">
        <source>Shows the pending changes</source>
        <translation>Näyttää odottavat muutokset</translation>
    </message>
    <message id="shell_language">
        <source>Language</source>
        <translation>Kieli</translation>
    </message>
    <message id="shell_userLevel">
        <source>User level</source>
        <translation>Käyttäjätaso</translation>
    </message>
    <message id="shell_userLevel1">
        <source>Observer</source>
        <translation>Tarkkailija</translation>
    </message>
    <message id="shell_userLevel2">
        <source>Operator</source>
        <translation>Käyttäjä</translation>
    </message>
    <message id="shell_userLevel3">
        <source>Maintenance</source>
        <translation>Kunnossapito</translation>
    </message>
    <message id="shell_userLevel4">
        <source>Specialist</source>
        <translation>Asiantuntija</translation>
    </message>
    <message id="shell_pages">
        <source>Pages</source>
        <translation>Sivut</translation>
    </message>
    <message id="shell_log">
        <source>Log</source>
        <translation>Loki</translation>
    </message>
    <message id="shell_logClear">
        <source>Clear</source>
        <translation>Tyhjennä</translation>
    </message>
    <message id="shell_logTime">
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message id="shell_logCategory">
        <source>Kind</source>
        <translation>Laji</translation>
    </message>
    <message id="shell_logText">
        <source>Text</source>
        <translation>Teksti</translation>
    </message>
    <message id="shell_about">
        <source>&amp;About Quill</source>
        <translation>&amp;Tietoja Quillista</translation>
    </message>
    <message id="shell_aboutText">
        <source>A reference host for the Quill controls with a simulated valve positioner.</source>
        <translation>Quill-ohjainten esimerkki-isäntä, jossa on simuloitu venttiiliohjain.</translation>
    </message>
    <message id="shell_aboutVersion">
        <source>Version %1, under the Apache License 2.0</source>
        <translation>Versio %1, Apache-lisenssi 2.0</translation>
    </message>
    <message id="shell_saved">
        <source>Saved: %1</source>
        <translation>Tallennettu: %1</translation>
    </message>
    <message id="shell_opened">
        <source>Opened: %1</source>
        <translation>Avattu: %1</translation>
    </message>
    <message id="shell_editCount">
        <source>Pending changes: %1</source>
        <translation>Avoimia muutoksia: %1</translation>
    </message>
    <message id="shell_closeTitle">
        <source>Unsaved changes</source>
        <translation>Tallentamattomia muutoksia</translation>
    </message>
    <message id="shell_readQuestion">
        <source>Reading replaces the edits of these parameters. Read?</source>
        <translation>Lukeminen korvaa näiden parametrien muokkaukset. Luetaanko?</translation>
    </message>
    <message id="shell_userLevelTooLow">
        <source>Your user level does not allow changes on the device.</source>
        <translation>Käyttäjätasosi ei salli muutoksia laitteeseen.</translation>
    </message>
    <message id="shell_offlineNoRequest">
        <source>This needs the device. Go online first.</source>
        <translation>Tähän tarvitaan laite. Yhdistä ensin.</translation>
    </message>
    <message id="shell_errNoFile">
        <source>The file %1 does not exist. Choose another file.</source>
        <translation>Tiedostoa %1 ei ole. Valitse toinen tiedosto.</translation>
    </message>
    <message id="shell_errUnreadable">
        <source>The file %1 cannot be read. Check that you may read it, or choose another file.</source>
        <translation>Tiedostoa %1 ei voi lukea. Tarkista lukuoikeutesi tai valitse toinen tiedosto.</translation>
    </message>
    <message id="shell_errEncoding">
        <source>The datafile has a character encoding that cannot be read: %1. Save it as UTF-8 and open it again.</source>
        <translation>Laitetiedoston merkistöä ei voi lukea: %1. Tallenna se UTF-8-muodossa ja avaa uudelleen.</translation>
    </message>
    <message id="shell_errNoDatafile">
        <source>This is no datafile: %1. Choose another file.</source>
        <translation>Tämä ei ole laitetiedosto: %1. Valitse toinen tiedosto.</translation>
    </message>
    <message id="shell_errNoFolder">
        <source>The folder %1 does not exist. Choose another folder.</source>
        <translation>Kansiota %1 ei ole. Valitse toinen kansio.</translation>
    </message>
    <message id="shell_errIsFolder">
        <source>%1 is a folder. Choose a file name.</source>
        <translation>%1 on kansio. Valitse tiedostonimi.</translation>
    </message>
    <message id="shell_errNoName">
        <source>The datafile has no file name yet. Save it under a name.</source>
        <translation>Laitetiedostolla ei ole vielä nimeä. Tallenna se nimellä.</translation>
    </message>
    <message id="shell_errWrite">
        <source>The file could not be written, the old one is unchanged: %1. Free some space or choose another folder.</source>
        <translation>Tiedostoa ei voitu kirjoittaa, vanha on ennallaan: %1. Vapauta tilaa tai valitse toinen kansio.</translation>
    </message>
    <message id="shell_errPatch">
        <source>The changes could not be put into the datafile, which is unchanged: %1. Check the value of this parameter.</source>
        <translation>Muutoksia ei voitu viedä laitetiedostoon, se on ennallaan: %1. Tarkista tämän parametrin arvo.</translation>
    </message>
    <!-- The window -->
    <message id="shell_disconnect">
        <source>&amp;Disconnect</source>
        <translation>&amp;Katkaise yhteys</translation>
    </message>
    <message id="shell_lastRead">
        <source>Last read:</source>
        <translation>Luettu viimeksi:</translation>
    </message>
    <message id="shell_readSection">
        <source>Read</source>
        <translation>Lue</translation>
    </message>
    <message id="shell_pageIdentification">
        <source>Identification</source>
        <translation>Tunnistetiedot</translation>
    </message>
    <message id="shell_pageConfiguration">
        <source>Configuration</source>
        <translation>Määritykset</translation>
    </message>
    <message id="shell_pageTuning">
        <source>Tuning and output</source>
        <translation>Viritys ja lähtö</translation>
    </message>
    <message id="shell_pageAlarms">
        <source>Alarms</source>
        <translation>Hälytykset</translation>
    </message>
    <message id="shell_pageDiagnostics">
        <source>Diagnostics</source>
        <translation>Diagnostiikka</translation>
    </message>
    <message id="shell_sectionDevice">
        <source>Device</source>
        <translation>Laite</translation>
    </message>
    <message id="shell_sectionInstallation">
        <source>Installation</source>
        <translation>Asennus</translation>
    </message>
    <message id="shell_sectionAssembly">
        <source>Valve assembly</source>
        <translation>Venttiili ja toimilaite</translation>
    </message>
    <message id="shell_sectionSignal">
        <source>Input signal</source>
        <translation>Tulosignaali</translation>
    </message>
    <message id="shell_sectionPressure">
        <source>Pressures</source>
        <translation>Paineet</translation>
    </message>
    <message id="shell_sectionMaintenance">
        <source>Maintenance</source>
        <translation>Huolto</translation>
    </message>
    <message id="shell_sectionTuning">
        <source>Tuning</source>
        <translation>Viritys</translation>
    </message>
    <message id="shell_sectionCurve">
        <source>User curve</source>
        <translation>Käyttäjän käyrä</translation>
    </message>
    <message id="shell_sectionOutput">
        <source>Output</source>
        <translation>Lähtö</translation>
    </message>
    <message id="shell_sectionAlarms">
        <source>Alarms</source>
        <translation>Hälytykset</translation>
    </message>
    <message id="shell_sectionBurst">
        <source>Burst mode</source>
        <translation>Purskelähetys</translation>
    </message>
    <message id="shell_sectionDiagnostics">
        <source>Device condition</source>
        <translation>Laitteen kunto</translation>
    </message>
    <message id="shell_dark">
        <source>&amp;Dark colours</source>
        <translation>&amp;Tummat värit</translation>
    </message>
    <message id="shell_darkTip">
        <source>Light texts on a dark ground</source>
        <translation>Vaalea teksti tummalla pohjalla</translation>
    </message>
    <message id="shell_menuUnits">
        <source>&amp;Units</source>
        <translation>&amp;Yksiköt</translation>
    </message>
    <message id="shell_unitsmetric">
        <source>Metric</source>
        <translation>Metriset</translation>
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
        <translation>&amp;Tallenna</translation>
    </message>
    <message id="shell_answerDiscard">
        <source>&amp;Discard</source>
        <translation>&amp;Hylkää</translation>
    </message>
    <message id="shell_saveQuestion">
        <source>%1 has changes that are not saved. Save them?</source>
        <translation>Kohteessa %1 on tallentamattomia muutoksia. Tallennetaanko ne?</translation>
    </message>
    <message id="shell_wordModified">
        <source>modified</source>
        <translation>muutettu</translation>
    </message>
    <message id="shell_wordError">
        <source>not correct</source>
        <translation>virheellinen</translation>
    </message>
    <message id="shell_logState">
        <source>State</source>
        <translation>Tila</translation>
    </message>
    <message id="shell_logMessage">
        <source>Message</source>
        <translation>Viesti</translation>
    </message>
    <message id="shell_logError">
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message id="shell_logDetail">
        <source>Detail</source>
        <translation>Lisätieto</translation>
    </message>
    <message id="shell_logShowDetails">
        <source>Show details</source>
        <translation>Näytä lisätiedot</translation>
    </message>
    <message id="shell_state_edited">
        <source>edited</source>
        <translation>muutettu</translation>
    </message>
    <message id="shell_state_editedError">
        <source>edited, not correct</source>
        <translation>muutettu, virheellinen</translation>
    </message>
    <message id="shell_state_corrected">
        <source>corrected</source>
        <translation>korjattu</translation>
    </message>
    <message id="shell_state_original">
        <source>as before</source>
        <translation>ennallaan</translation>
    </message>
    <message id="shell_state_notRead">
        <source>not read</source>
        <translation>ei luettu</translation>
    </message>
    <message id="shell_state_sync">
        <source>in step with the device</source>
        <translation>vastaa laitetta</translation>
    </message>
    <message id="shell_state_syncError">
        <source>communication error</source>
        <translation>tiedonsiirtovirhe</translation>
    </message>
    <message id="shell_state_reSync">
        <source>in step with the device again</source>
        <translation>vastaa jälleen laitetta</translation>
    </message>
    <!-- End of the window -->
    <message id="shell_pageStatus">
        <source>Status</source>
        <translation>Tila</translation>
    </message>
    <message id="shell_pageStatusConfiguration">
        <source>Status configuration</source>
        <translation>Tilan konfigurointi</translation>
    </message>
    <message id="shell_sampleVX4400H">
        <source>VX4400&amp;H (HART)</source>
        <translation>VX4400&amp;H (HART)</translation>
    </message>
    <message id="shell_sampleVX4400F">
        <source>VX4400&amp;F (fieldbus)</source>
        <translation>VX4400&amp;F (kenttäväylä)</translation>
    </message>
    <message id="shell_showStatus">
        <source>Device s&amp;tatus</source>
        <translation>Laitteen &amp;tila</translation>
    </message>
    <message id="shell_showStatusTip">
        <source>Shows the page with the device's status</source>
        <translation>Näyttää laitteen tilan sivun</translation>
    </message>
    <message id="shell_deviceStatusIs">
        <source>Device status: %1</source>
        <translation>Laitteen tila: %1</translation>
    </message>
    <message id="shell_configurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguraatio muuttunut</translation>
    </message>
    <message id="shell_clearChanged">
        <source>&amp;Acknowledge changed configuration</source>
        <translation>&amp;Kuittaa muuttunut konfiguraatio</translation>
    </message>
    <message id="shell_clearChangedTip">
        <source>Clears the device's sign that its configuration was changed</source>
        <translation>Poistaa laitteen ilmoituksen konfiguraation muuttumisesta</translation>
    </message>
    <message id="shell_acknowledge">
        <source>Acknowledge</source>
        <translation>Kuittaa</translation>
    </message>
    <message id="shell_menuClassification">
        <source>Status &amp;classification</source>
        <translation>Tila&amp;luokitus</translation>
    </message>
    <message id="shell_classificationSeverity">
        <source>&amp;Severity</source>
        <translation>&amp;Vakavuus</translation>
    </message>
    <message id="shell_classificationNamur">
        <source>&amp;NAMUR NE 107</source>
        <translation>&amp;NAMUR NE 107</translation>
    </message>
    <message id="shell_classificationTip">
        <source>How the device's conditions are classified</source>
        <translation>Miten laitteen tilat luokitellaan</translation>
    </message>
    <message id="deviceStatus">
        <source>Device status</source>
        <translation>Laitteen tila</translation>
    </message>
    <message id="deviceStatusNAMUR">
        <source>Device status (NAMUR)</source>
        <translation>Laitteen tila (NAMUR)</translation>
    </message>
    <message id="deviceStatusMasks">
        <source>Status masks</source>
        <translation>Tilamaskit</translation>
    </message>
    <message id="statusConfiguration">
        <source>Status configuration</source>
        <translation>Tilan konfigurointi</translation>
    </message>
    <message id="deviceFailure">
        <source>Failure</source>
        <translation>Vika</translation>
    </message>
    <message id="deviceUnderTest">
        <source>Function check</source>
        <translation>Toiminnan tarkastus</translation>
    </message>
    <message id="deviceOffSpecification">
        <source>Out of spec</source>
        <translation>Määrittelyn ulkopuolella</translation>
    </message>
    <message id="deviceMaintenanceRequired">
        <source>Maintenance required</source>
        <translation>Huolto tarpeen</translation>
    </message>
    <message id="deviceInfo">
        <source>Information</source>
        <translation>Ilmoitus</translation>
    </message>
    <message id="deviceOk">
        <source>Good</source>
        <translation>Kunnossa</translation>
    </message>
    <message id="deviceDiagnosisPassiv">
        <source>Diagnosis inactive</source>
        <translation>Diagnostiikka pois</translation>
    </message>
    <message id="failsafe">
        <source>Fail-safe</source>
        <translation>Turva-asento</translation>
    </message>
    <message id="alarm">
        <source>Alarm</source>
        <translation>Hälytys</translation>
    </message>
    <message id="warning">
        <source>Warning</source>
        <translation>Varoitus</translation>
    </message>
    <message id="info">
        <source>Information</source>
        <translation>Ilmoitus</translation>
    </message>
    <message id="inactive">
        <source>Switched off</source>
        <translation>Pois käytöstä</translation>
    </message>
    <message id="notMonitored">
        <source>Not monitored</source>
        <translation>Ei valvottu</translation>
    </message>
    <message id="unknown">
        <source>Unknown</source>
        <translation>Tuntematon</translation>
    </message>
    <message id="checkEnabled">
        <source>Switched on</source>
        <translation>Päällä</translation>
    </message>
    <message id="checkDisabled">
        <source>Switched off</source>
        <translation>Pois päältä</translation>
    </message>
    <message id="checkEnabledmodified">
        <source>Switched on, changed</source>
        <translation>Päällä, muutettu</translation>
    </message>
    <message id="checkDisabledmodified">
        <source>Switched off, changed</source>
        <translation>Pois päältä, muutettu</translation>
    </message>
    <message id="modified">
        <source>Changed</source>
        <translation>Muutettu</translation>
    </message>
    <message id="statusGroupElectronics">
        <source>Electronics</source>
        <translation>Elektroniikka</translation>
    </message>
    <message id="statusElectronicsFailure">
        <source>Electronics failure</source>
        <translation>Elektroniikkavika</translation>
    </message>
    <message id="statusMemoryFailure">
        <source>Memory failure</source>
        <translation>Muistivika</translation>
    </message>
    <message id="statusParameterChecksumError">
        <source>Parameter checksum error</source>
        <translation>Parametrien tarkistussummavirhe</translation>
    </message>
    <message id="statusInternalVoltageLow">
        <source>Internal supply voltage low</source>
        <translation>Sisäinen käyttöjännite matala</translation>
    </message>
    <message id="statusTemperatureHigh">
        <source>Device temperature high</source>
        <translation>Laitteen lämpötila korkea</translation>
    </message>
    <message id="statusTemperatureLow">
        <source>Device temperature low</source>
        <translation>Laitteen lämpötila matala</translation>
    </message>
    <message id="statusCoverOpen">
        <source>Cover open</source>
        <translation>Kansi auki</translation>
    </message>
    <message id="statusWatchdogReset">
        <source>Reset by watchdog</source>
        <translation>Vahtikoiran aiheuttama uudelleenkäynnistys</translation>
    </message>
    <message id="statusGroupSensors">
        <source>Sensors</source>
        <translation>Anturit</translation>
    </message>
    <message id="statusTravelSensorFailure">
        <source>Travel sensor failure</source>
        <translation>Asema-anturin vika</translation>
    </message>
    <message id="statusTravelOutOfRange">
        <source>Travel outside sensor range</source>
        <translation>Asema mittausalueen ulkopuolella</translation>
    </message>
    <message id="statusSupplySensorFailure">
        <source>Supply pressure sensor failure</source>
        <translation>Syöttöpaineanturin vika</translation>
    </message>
    <message id="statusActuatorSensorFailure">
        <source>Actuator pressure sensor failure</source>
        <translation>Toimilaitteen paineanturin vika</translation>
    </message>
    <message id="statusTemperatureSensorFailure">
        <source>Temperature sensor failure</source>
        <translation>Lämpötila-anturin vika</translation>
    </message>
    <message id="statusSensorDrift">
        <source>Sensor drift</source>
        <translation>Anturin ryömintä</translation>
    </message>
    <message id="statusGroupPneumatics">
        <source>Pneumatics</source>
        <translation>Pneumatiikka</translation>
    </message>
    <message id="statusSupplyPressureLow">
        <source>Supply pressure low</source>
        <translation>Syöttöpaine matala</translation>
    </message>
    <message id="statusSupplyPressureHigh">
        <source>Supply pressure high</source>
        <translation>Syöttöpaine korkea</translation>
    </message>
    <message id="statusSupplyPressureUnstable">
        <source>Supply pressure unstable</source>
        <translation>Syöttöpaine epävakaa</translation>
    </message>
    <message id="statusDriveSaturated">
        <source>Drive signal at its limit</source>
        <translation>Ohjaussignaali rajalla</translation>
    </message>
    <message id="statusPneumaticLeak">
        <source>Pneumatic leak</source>
        <translation>Pneumatiikkavuoto</translation>
    </message>
    <message id="statusPilotStageFailure">
        <source>Pilot stage failure</source>
        <translation>Esiohjausasteen vika</translation>
    </message>
    <message id="statusExhaustBlocked">
        <source>Exhaust blocked</source>
        <translation>Poistoilma tukossa</translation>
    </message>
    <message id="statusGroupValve">
        <source>Valve and actuator</source>
        <translation>Venttiili ja toimilaite</translation>
    </message>
    <message id="statusTravelDeviation">
        <source>Travel deviation</source>
        <translation>Asemapoikkeama</translation>
    </message>
    <message id="statusValveStuck">
        <source>Valve stuck</source>
        <translation>Venttiili jumissa</translation>
    </message>
    <message id="statusFrictionHigh">
        <source>Friction high</source>
        <translation>Kitka suuri</translation>
    </message>
    <message id="statusFrictionLow">
        <source>Friction low</source>
        <translation>Kitka pieni</translation>
    </message>
    <message id="statusStickSlip">
        <source>Stick-slip motion</source>
        <translation>Nykivä liike (stick-slip)</translation>
    </message>
    <message id="statusTravelHigh">
        <source>Travel high alarm</source>
        <translation>Aseman ylärajahälytys</translation>
    </message>
    <message id="statusTravelLow">
        <source>Travel low alarm</source>
        <translation>Aseman alarajahälytys</translation>
    </message>
    <message id="statusCycleCounterLimit">
        <source>Cycle counter limit exceeded</source>
        <translation>Liikelaskurin raja ylitetty</translation>
    </message>
    <message id="statusTravelSumLimit">
        <source>Total travel limit exceeded</source>
        <translation>Kokonaismatkan raja ylitetty</translation>
    </message>
    <message id="statusSpringFailure">
        <source>Actuator spring failure</source>
        <translation>Toimilaitteen jousivika</translation>
    </message>
    <message id="statusSeatWear">
        <source>Seat wear</source>
        <translation>Istukan kuluminen</translation>
    </message>
    <message id="statusPackingLeak">
        <source>Packing leak</source>
        <translation>Tiivistepesän vuoto</translation>
    </message>
    <message id="statusGroupProcess">
        <source>Process</source>
        <translation>Prosessi</translation>
    </message>
    <message id="statusSignalLow">
        <source>Input signal low</source>
        <translation>Tulosignaali matala</translation>
    </message>
    <message id="statusSignalHigh">
        <source>Input signal high</source>
        <translation>Tulosignaali korkea</translation>
    </message>
    <message id="statusSetpointOscillating">
        <source>Set point oscillates</source>
        <translation>Asetusarvo värähtelee</translation>
    </message>
    <message id="statusCavitation">
        <source>Cavitation</source>
        <translation>Kavitaatio</translation>
    </message>
    <message id="statusSafetyShutdown">
        <source>Safety shutdown active</source>
        <translation>Turva-alasajo aktiivinen</translation>
    </message>
    <message id="statusStrokeTestFailed">
        <source>Stroke test failed</source>
        <translation>Iskutesti epäonnistui</translation>
    </message>
    <message id="statusStrokeTestOverdue">
        <source>Stroke test overdue</source>
        <translation>Iskutesti myöhässä</translation>
    </message>
    <message id="statusGroupOperation">
        <source>Configuration and operation</source>
        <translation>Konfigurointi ja käyttö</translation>
    </message>
    <message id="statusSimulationActive">
        <source>Simulation active</source>
        <translation>Simulointi aktiivinen</translation>
    </message>
    <message id="statusLocalOperation">
        <source>Local operation</source>
        <translation>Paikalliskäyttö</translation>
    </message>
    <message id="statusLoopCurrentFixed">
        <source>Loop current fixed</source>
        <translation>Silmukkavirta kiinteä</translation>
    </message>
    <message id="statusBusTimeout">
        <source>Bus communication interrupted</source>
        <translation>Väyläliikenne katkennut</translation>
    </message>
    <message id="statusNotCalibrated">
        <source>Travel not calibrated</source>
        <translation>Asemaa ei ole kalibroitu</translation>
    </message>
    <message id="statusCalibrationRunning">
        <source>Calibration running</source>
        <translation>Kalibrointi käynnissä</translation>
    </message>
    <message id="statusWriteProtected">
        <source>Write protection on</source>
        <translation>Kirjoitussuojaus päällä</translation>
    </message>
    <message id="statusMaintenanceDue">
        <source>Maintenance due</source>
        <translation>Huolto erääntynyt</translation>
    </message>
    <message id="statusColdStart">
        <source>Restarted since last read</source>
        <translation>Käynnistynyt uudelleen lukemisen jälkeen</translation>
    </message>
    <message id="statusHARTConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguraatio muuttunut</translation>
    </message>
    <message id="statusConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Konfiguraatio muuttunut</translation>
    </message>
    <message id="faultSupplyFailure">
        <source>Supply air fails</source>
        <translation>Syöttöilma katkeaa</translation>
    </message>
    <message id="faultSupplyTooHigh">
        <source>Supply pressure regulator fails</source>
        <translation>Syöttöpaineen säädin pettää</translation>
    </message>
    <message id="faultFriction">
        <source>Raised friction</source>
        <translation>Kohonnut kitka</translation>
    </message>
    <message id="faultWornPacking">
        <source>Worn packing</source>
        <translation>Kulunut tiivistepesä</translation>
    </message>
    <message id="faultStuck">
        <source>Valve stuck</source>
        <translation>Venttiili jumissa</translation>
    </message>
    <message id="faultLeak">
        <source>Leaking actuator</source>
        <translation>Vuotava toimilaite</translation>
    </message>
    <message id="faultTravelSensor">
        <source>Travel sensor fails</source>
        <translation>Asema-anturi vikaantuu</translation>
    </message>
    <message id="faultSupplySensor">
        <source>Supply pressure sensor fails</source>
        <translation>Syöttöpaineanturi vikaantuu</translation>
    </message>
    <message id="faultActuatorSensor">
        <source>Actuator pressure sensor fails</source>
        <translation>Toimilaitteen paineanturi vikaantuu</translation>
    </message>
    <message id="faultTemperatureSensor">
        <source>Temperature sensor fails</source>
        <translation>Lämpötila-anturi vikaantuu</translation>
    </message>
    <message id="faultOverheating">
        <source>Overheating</source>
        <translation>Ylikuumeneminen</translation>
    </message>
    <message id="faultFrost">
        <source>Frost</source>
        <translation>Pakkanen</translation>
    </message>
    <message id="faultCoverOpen">
        <source>Cover lifted</source>
        <translation>Kansi avattu</translation>
    </message>
    <message id="faultSignalLost">
        <source>Input signal lost</source>
        <translation>Tulosignaali puuttuu</translation>
    </message>
    <message id="faultSignalOscillating">
        <source>Oscillating input signal</source>
        <translation>Värähtelevä tulosignaali</translation>
    </message>
    <message id="faultSimulation">
        <source>Simulation of measured values</source>
        <translation>Mittausarvojen simulointi</translation>
    </message>
    <message id="statusMasks">
        <source>Status configuration</source>
        <translation>Tilan konfigurointi</translation>
    </message>
    <message id="cycleCounterLimit">
        <source>Cycle counter limit</source>
        <translation>Liikelaskurin raja</translation>
    </message>
    <message id="travelSum">
        <source>Total travel</source>
        <translation>Kokonaismatka</translation>
    </message>
    <message id="travelSumLimit">
        <source>Total travel limit</source>
        <translation>Kokonaismatkan raja</translation>
    </message>
    <message id="travelDeviationLimit">
        <source>Travel deviation limit</source>
        <translation>Asemapoikkeaman raja</translation>
    </message>
    <message id="frictionHighLimit">
        <source>High friction limit</source>
        <translation>Kitkan yläraja</translation>
    </message>
    <message id="frictionLowLimit">
        <source>Low friction limit</source>
        <translation>Kitkan alaraja</translation>
    </message>
    <message id="inputCurrent">
        <source>Input current</source>
        <translation>Tulovirta</translation>
    </message>
    <message id="travelSetpoint">
        <source>Travel set point</source>
        <translation>Aseman asetusarvo</translation>
    </message>
    <message id="travelDeviation">
        <source>Travel deviation</source>
        <translation>Asemapoikkeama</translation>
    </message>
    <message id="driveSignal">
        <source>Drive signal</source>
        <translation>Ohjaussignaali</translation>
    </message>
    <message id="valveFriction">
        <source>Valve friction</source>
        <translation>Venttiilin kitka</translation>
    </message>
    <message id="statusMask1">
        <source>Status mask, part 1</source>
        <translation>Tilamaski, osa 1</translation>
    </message>
    <message id="statusMaskInfo1">
        <source>Information mask, part 1</source>
        <translation>Infomaski, osa 1</translation>
    </message>
    <message id="statusMaskWarning1">
        <source>Warning mask, part 1</source>
        <translation>Varoitusmaski, osa 1</translation>
    </message>
    <message id="statusMaskAlarm1">
        <source>Alarm mask, part 1</source>
        <translation>Hälytysmaski, osa 1</translation>
    </message>
    <message id="statusMaskOnOff1">
        <source>On/off mask, part 1</source>
        <translation>Päällä/pois-maski, osa 1</translation>
    </message>
    <message id="statusMask2">
        <source>Status mask, part 2</source>
        <translation>Tilamaski, osa 2</translation>
    </message>
    <message id="statusMaskInfo2">
        <source>Information mask, part 2</source>
        <translation>Infomaski, osa 2</translation>
    </message>
    <message id="statusMaskWarning2">
        <source>Warning mask, part 2</source>
        <translation>Varoitusmaski, osa 2</translation>
    </message>
    <message id="statusMaskAlarm2">
        <source>Alarm mask, part 2</source>
        <translation>Hälytysmaski, osa 2</translation>
    </message>
    <message id="statusMaskOnOff2">
        <source>On/off mask, part 2</source>
        <translation>Päällä/pois-maski, osa 2</translation>
    </message>
    <message id="statusMask3">
        <source>Status mask, part 3</source>
        <translation>Tilamaski, osa 3</translation>
    </message>
    <message id="statusMaskInfo3">
        <source>Information mask, part 3</source>
        <translation>Infomaski, osa 3</translation>
    </message>
    <message id="statusMaskWarning3">
        <source>Warning mask, part 3</source>
        <translation>Varoitusmaski, osa 3</translation>
    </message>
    <message id="statusMaskAlarm3">
        <source>Alarm mask, part 3</source>
        <translation>Hälytysmaski, osa 3</translation>
    </message>
    <message id="statusMaskOnOff3">
        <source>On/off mask, part 3</source>
        <translation>Päällä/pois-maski, osa 3</translation>
    </message>
    <message id="shell_simulation">
        <source>Simulation</source>
        <translation>Simulointi</translation>
    </message>
    <message id="shell_simulationFaults">
        <source>Faults</source>
        <translation>Viat</translation>
    </message>
    <message id="shell_simulationMend">
        <source>Put everything right</source>
        <translation>Korjaa kaikki</translation>
    </message>
    <message id="shell_simulationFriction">
        <source>Friction</source>
        <translation>Kitka</translation>
    </message>
    <message id="shell_simulationSignal">
        <source>Fixed input current</source>
        <translation>Kiinteä tulovirta</translation>
    </message>
    <message id="eventLog">
        <source>Event log</source>
        <translation>Tapahtumaloki</translation>
    </message>
    <message id="moreEvents">
        <source>More events</source>
        <translation>Lisää tapahtumia</translation>
    </message>
    <message id="totalOperationTime">
        <source>Total operation time</source>
        <translation>Kokonaiskäyttöaika</translation>
    </message>
    <message id="eventLogTotalOperationTime">
        <source>Total operation time</source>
        <translation>Kokonaiskäyttöaika</translation>
    </message>
    <message id="dateEstimate">
        <source>*) Assuming 0s downtime</source>
        <translation>*) Oletuksena, ettei katkoja ole ollut</translation>
    </message>
    <message id="class">
        <source>Class</source>
        <translation>Luokka</translation>
    </message>
    <message id="event">
        <source>Event</source>
        <translation>Tapahtuma</translation>
    </message>
    <message id="eventLogTimeHeader">
        <source>Operation time (h)</source>
        <translation>Käyttöaika (h)</translation>
    </message>
    <message id="date">
        <source>Date</source>
        <translation>Päivämäärä</translation>
    </message>
    <message id="channelIndex">
        <source>Index</source>
        <translation>Indeksi</translation>
    </message>
    <message id="row">
        <source>Row</source>
        <translation>Rivi</translation>
    </message>
    <message id="eventObsolete">
        <source>Obsolete</source>
        <translation>Vanhentunut</translation>
    </message>
    <message id="eventLogOperationTime">
        <source>Operation time</source>
        <translation>Käyttöaika</translation>
    </message>
    <message id="counters">
        <source>Counters</source>
        <translation>Laskurit</translation>
    </message>
    <message id="vx4400eventClassNone">
        <source>None</source>
        <translation>Ei luokkaa</translation>
    </message>
    <message id="vx4400eventClassError">
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message id="vx4400eventClassAlarm">
        <source>Alarm</source>
        <translation>Hälytys</translation>
    </message>
    <message id="vx4400eventClassWarning">
        <source>Warning</source>
        <translation>Varoitus</translation>
    </message>
    <message id="vx4400eventClassNotification">
        <source>Notification</source>
        <translation>Ilmoitus</translation>
    </message>
    <message id="vx4400eventNone">
        <source>No more events</source>
        <translation>Ei muita tapahtumia</translation>
    </message>
    <message id="vx4400eventExternalReset">
        <source>External reset</source>
        <translation>Ulkoinen uudelleenkäynnistys</translation>
    </message>
    <message id="vx4400eventConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Asetuksia muutettu</translation>
    </message>
    <message id="vx4400eventAddressChanged">
        <source>Polling address changed</source>
        <translation>Kyselyosoite vaihdettu</translation>
    </message>
    <message id="vx4400eventStatusReset">
        <source>Device status reset</source>
        <translation>Laitteen tila nollattu</translation>
    </message>
    <message id="vx4400eventCountersReset">
        <source>Counters reset</source>
        <translation>Laskurit nollattu</translation>
    </message>
    <message id="vx4400eventExtremesReset">
        <source>Temperature extremes reset</source>
        <translation>Lämpötilan ääriarvot nollattu</translation>
    </message>
    <message id="vx4400eventLogReset">
        <source>Event log cleared</source>
        <translation>Tapahtumaloki tyhjennetty</translation>
    </message>
    <message id="vx4400eventTuningReset">
        <source>Tuning back to defaults</source>
        <translation>Säätöparametrit palautettu oletuksiin</translation>
    </message>
    <message id="vx4400eventAlarmsReset">
        <source>Alarm settings back to defaults</source>
        <translation>Hälytysasetukset palautettu oletuksiin</translation>
    </message>
    <message id="vx4400eventFactorySettings">
        <source>Factory settings restored</source>
        <translation>Tehdasasetukset palautettu</translation>
    </message>
    <message id="vx4400eventCurrentCalibrated">
        <source>Loop current calibrated</source>
        <translation>Silmukkavirta kalibroitu</translation>
    </message>
    <message id="reset">
        <source>Reset</source>
        <translation>Nollaa</translation>
    </message>
    <message id="resetView">
        <source>Reset</source>
        <translation>Nollaus</translation>
    </message>
    <message id="resetStatus">
        <source>Device status</source>
        <translation>Laitteen tila</translation>
    </message>
    <message id="resetDiagnosticsCode">
        <source>Diagnostics</source>
        <translation>Diagnostiikka</translation>
    </message>
    <message id="resetParametersCode">
        <source>Parameters</source>
        <translation>Parametrit</translation>
    </message>
    <message id="resetDiagnostics">
        <source>Reset diagnostics</source>
        <translation>Diagnostiikan nollaus</translation>
    </message>
    <message id="resetDiagnosticsQuestion">
        <source>The diagnostic data chosen will be lost. Reset it?</source>
        <translation>Valitut diagnostiikkatiedot menetetään. Nollataanko ne?</translation>
    </message>
    <message id="resetParameters">
        <source>Reset parameters</source>
        <translation>Parametrien palautus</translation>
    </message>
    <message id="resetParametersQuestion">
        <source>This changes the device's settings or restarts it. The valve may move. Continue?</source>
        <translation>Toiminto muuttaa laitteen asetuksia tai käynnistää sen uudelleen. Venttiili voi liikkua. Jatketaanko?</translation>
    </message>
    <message id="resetting">
        <source>Resetting</source>
        <translation>Nollataan</translation>
    </message>
    <message id="resetNothing">
        <source>Nothing</source>
        <translation>Ei mitään</translation>
    </message>
    <message id="resetStatusAll">
        <source>Latched conditions</source>
        <translation>Lukittuneet tilat</translation>
    </message>
    <message id="resetCounters">
        <source>Counters</source>
        <translation>Laskurit</translation>
    </message>
    <message id="resetExtremes">
        <source>Temperature extremes</source>
        <translation>Lämpötilan ääriarvot</translation>
    </message>
    <message id="resetEventLog">
        <source>Event log</source>
        <translation>Tapahtumaloki</translation>
    </message>
    <message id="resetDiagnosticsAll">
        <source>All diagnostic data</source>
        <translation>Kaikki diagnostiikkatiedot</translation>
    </message>
    <message id="resetTuning">
        <source>Tuning to defaults</source>
        <translation>Säätöparametrit oletuksiin</translation>
    </message>
    <message id="resetAlarms">
        <source>Alarm settings to defaults</source>
        <translation>Hälytysasetukset oletuksiin</translation>
    </message>
    <message id="resetFactory">
        <source>All settings to factory defaults</source>
        <translation>Kaikki asetukset tehdasarvoihin</translation>
    </message>
    <message id="resetRestart">
        <source>Restart the device</source>
        <translation>Käynnistä laite uudelleen</translation>
    </message>
    <message id="hartAddress">
        <source>HART address</source>
        <translation>HART-osoite</translation>
    </message>
    <message id="address">
        <source>Address</source>
        <translation>Osoite</translation>
    </message>
    <message id="multidrop">
        <source>Multidrop</source>
        <translation>Multidrop</translation>
    </message>
    <message id="disabled">
        <source>Off</source>
        <translation>Pois</translation>
    </message>
    <message id="enabled">
        <source>On</source>
        <translation>Päällä</translation>
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
        <translation>mA-kalibrointi</translation>
    </message>
    <message id="mACalibration">
        <source>mA calibration</source>
        <translation>mA-kalibrointi</translation>
    </message>
    <message id="zeroPointTrim">
        <source>1. Drive the low test current</source>
        <translation>1. Aja alempi testivirta</translation>
    </message>
    <message id="measuredCurrentZeroTrim">
        <source>2. Type the measured low current</source>
        <translation>2. Syötä mitattu alempi virta</translation>
    </message>
    <message id="finalValueTrim">
        <source>3. Drive the high test current</source>
        <translation>3. Aja ylempi testivirta</translation>
    </message>
    <message id="measuredCurrentFullTrim">
        <source>4. Type the measured high current</source>
        <translation>4. Syötä mitattu ylempi virta</translation>
    </message>
    <message id="fixedOutputCurrentTurnOff">
        <source>5. Turn the fixed current off</source>
        <translation>5. Kytke kiinteä virta pois</translation>
    </message>
    <message id="backWithArrow">
        <source>&lt;   Back</source>
        <translation>&lt;   Takaisin</translation>
    </message>
    <message id="nextWithArrow">
        <source>Next   &gt;</source>
        <translation>Seuraava   &gt;</translation>
    </message>
    <message id="recalibrate">
        <source>Calibrate again</source>
        <translation>Kalibroi uudelleen</translation>
    </message>
    <message id="calibrationExitWarning">
        <source>The device still drives a fixed output current. Turn it off and leave the calibration?</source>
        <translation>Laite ajaa yhä kiinteää lähtövirtaa. Kytketäänkö se pois ja poistutaanko kalibroinnista?</translation>
    </message>
    <message id="loopTestValue">
        <source>Test current</source>
        <translation>Testivirta</translation>
    </message>
    <message id="loopTestValueStep0">
        <source>Test current</source>
        <translation>Testivirta</translation>
    </message>
    <message id="loopTestValueStep2">
        <source>Test current</source>
        <translation>Testivirta</translation>
    </message>
    <message id="loopTestValueStep4">
        <source>Test current</source>
        <translation>Testivirta</translation>
    </message>
    <message id="loopCurrentZero">
        <source>Measured low current</source>
        <translation>Mitattu alempi virta</translation>
    </message>
    <message id="loopCurrentGain">
        <source>Measured high current</source>
        <translation>Mitattu ylempi virta</translation>
    </message>
    <message id="moduleSelection">
        <source>Module selection</source>
        <translation>Moduulin valinta</translation>
    </message>
    <message id="hartCmdErrIncorrectLoopCurrentMode">
        <source>The device does not drive a current for this step. Drive the test current first; in multidrop mode the current is fixed.</source>
        <translation>Laite ei aja virtaa tätä vaihetta varten. Aja ensin testivirta; multidrop-tilassa virta on kiinteä.</translation>
    </message>
    <message id="hartCmdErrPassedParameterTooLarge">
        <source>The value is too large.</source>
        <translation>Arvo on liian suuri.</translation>
    </message>
    <message id="hartCmdErrPassedParameterTooSmall">
        <source>The value is too small.</source>
        <translation>Arvo on liian pieni.</translation>
    </message>
    <message id="eventLogEvent00">
        <source>Event 0</source>
        <translation>Tapahtuma 0</translation>
    </message>
    <message id="eventLogClass00">
        <source>Event class 0</source>
        <translation>Tapahtuman luokka 0</translation>
    </message>
    <message id="eventLogTime00">
        <source>Event time 0</source>
        <translation>Tapahtuman aika 0</translation>
    </message>
    <message id="eventLogEvent01">
        <source>Event 1</source>
        <translation>Tapahtuma 1</translation>
    </message>
    <message id="eventLogClass01">
        <source>Event class 1</source>
        <translation>Tapahtuman luokka 1</translation>
    </message>
    <message id="eventLogTime01">
        <source>Event time 1</source>
        <translation>Tapahtuman aika 1</translation>
    </message>
    <message id="eventLogEvent02">
        <source>Event 2</source>
        <translation>Tapahtuma 2</translation>
    </message>
    <message id="eventLogClass02">
        <source>Event class 2</source>
        <translation>Tapahtuman luokka 2</translation>
    </message>
    <message id="eventLogTime02">
        <source>Event time 2</source>
        <translation>Tapahtuman aika 2</translation>
    </message>
    <message id="eventLogEvent03">
        <source>Event 3</source>
        <translation>Tapahtuma 3</translation>
    </message>
    <message id="eventLogClass03">
        <source>Event class 3</source>
        <translation>Tapahtuman luokka 3</translation>
    </message>
    <message id="eventLogTime03">
        <source>Event time 3</source>
        <translation>Tapahtuman aika 3</translation>
    </message>
    <message id="eventLogEvent04">
        <source>Event 4</source>
        <translation>Tapahtuma 4</translation>
    </message>
    <message id="eventLogClass04">
        <source>Event class 4</source>
        <translation>Tapahtuman luokka 4</translation>
    </message>
    <message id="eventLogTime04">
        <source>Event time 4</source>
        <translation>Tapahtuman aika 4</translation>
    </message>
    <message id="eventLogEvent05">
        <source>Event 5</source>
        <translation>Tapahtuma 5</translation>
    </message>
    <message id="eventLogClass05">
        <source>Event class 5</source>
        <translation>Tapahtuman luokka 5</translation>
    </message>
    <message id="eventLogTime05">
        <source>Event time 5</source>
        <translation>Tapahtuman aika 5</translation>
    </message>
    <message id="eventLogEvent06">
        <source>Event 6</source>
        <translation>Tapahtuma 6</translation>
    </message>
    <message id="eventLogClass06">
        <source>Event class 6</source>
        <translation>Tapahtuman luokka 6</translation>
    </message>
    <message id="eventLogTime06">
        <source>Event time 6</source>
        <translation>Tapahtuman aika 6</translation>
    </message>
    <message id="eventLogEvent07">
        <source>Event 7</source>
        <translation>Tapahtuma 7</translation>
    </message>
    <message id="eventLogClass07">
        <source>Event class 7</source>
        <translation>Tapahtuman luokka 7</translation>
    </message>
    <message id="eventLogTime07">
        <source>Event time 7</source>
        <translation>Tapahtuman aika 7</translation>
    </message>
    <message id="eventLogEvent08">
        <source>Event 8</source>
        <translation>Tapahtuma 8</translation>
    </message>
    <message id="eventLogClass08">
        <source>Event class 8</source>
        <translation>Tapahtuman luokka 8</translation>
    </message>
    <message id="eventLogTime08">
        <source>Event time 8</source>
        <translation>Tapahtuman aika 8</translation>
    </message>
    <message id="eventLogEvent09">
        <source>Event 9</source>
        <translation>Tapahtuma 9</translation>
    </message>
    <message id="eventLogClass09">
        <source>Event class 9</source>
        <translation>Tapahtuman luokka 9</translation>
    </message>
    <message id="eventLogTime09">
        <source>Event time 9</source>
        <translation>Tapahtuman aika 9</translation>
    </message>
    <message id="eventLogEvent10">
        <source>Event 10</source>
        <translation>Tapahtuma 10</translation>
    </message>
    <message id="eventLogClass10">
        <source>Event class 10</source>
        <translation>Tapahtuman luokka 10</translation>
    </message>
    <message id="eventLogTime10">
        <source>Event time 10</source>
        <translation>Tapahtuman aika 10</translation>
    </message>
    <message id="eventLogEvent11">
        <source>Event 11</source>
        <translation>Tapahtuma 11</translation>
    </message>
    <message id="eventLogClass11">
        <source>Event class 11</source>
        <translation>Tapahtuman luokka 11</translation>
    </message>
    <message id="eventLogTime11">
        <source>Event time 11</source>
        <translation>Tapahtuman aika 11</translation>
    </message>
    <message id="eventLogEvent12">
        <source>Event 12</source>
        <translation>Tapahtuma 12</translation>
    </message>
    <message id="eventLogClass12">
        <source>Event class 12</source>
        <translation>Tapahtuman luokka 12</translation>
    </message>
    <message id="eventLogTime12">
        <source>Event time 12</source>
        <translation>Tapahtuman aika 12</translation>
    </message>
    <message id="eventLogEvent13">
        <source>Event 13</source>
        <translation>Tapahtuma 13</translation>
    </message>
    <message id="eventLogClass13">
        <source>Event class 13</source>
        <translation>Tapahtuman luokka 13</translation>
    </message>
    <message id="eventLogTime13">
        <source>Event time 13</source>
        <translation>Tapahtuman aika 13</translation>
    </message>
    <message id="eventLogEvent14">
        <source>Event 14</source>
        <translation>Tapahtuma 14</translation>
    </message>
    <message id="eventLogClass14">
        <source>Event class 14</source>
        <translation>Tapahtuman luokka 14</translation>
    </message>
    <message id="eventLogTime14">
        <source>Event time 14</source>
        <translation>Tapahtuman aika 14</translation>
    </message>
    <message id="eventLogEvent15">
        <source>Event 15</source>
        <translation>Tapahtuma 15</translation>
    </message>
    <message id="eventLogClass15">
        <source>Event class 15</source>
        <translation>Tapahtuman luokka 15</translation>
    </message>
    <message id="eventLogTime15">
        <source>Event time 15</source>
        <translation>Tapahtuman aika 15</translation>
    </message>
    <message id="eventLogEvent16">
        <source>Event 16</source>
        <translation>Tapahtuma 16</translation>
    </message>
    <message id="eventLogClass16">
        <source>Event class 16</source>
        <translation>Tapahtuman luokka 16</translation>
    </message>
    <message id="eventLogTime16">
        <source>Event time 16</source>
        <translation>Tapahtuman aika 16</translation>
    </message>
    <message id="eventLogEvent17">
        <source>Event 17</source>
        <translation>Tapahtuma 17</translation>
    </message>
    <message id="eventLogClass17">
        <source>Event class 17</source>
        <translation>Tapahtuman luokka 17</translation>
    </message>
    <message id="eventLogTime17">
        <source>Event time 17</source>
        <translation>Tapahtuman aika 17</translation>
    </message>
    <message id="eventLogEvent18">
        <source>Event 18</source>
        <translation>Tapahtuma 18</translation>
    </message>
    <message id="eventLogClass18">
        <source>Event class 18</source>
        <translation>Tapahtuman luokka 18</translation>
    </message>
    <message id="eventLogTime18">
        <source>Event time 18</source>
        <translation>Tapahtuman aika 18</translation>
    </message>
    <message id="eventLogEvent19">
        <source>Event 19</source>
        <translation>Tapahtuma 19</translation>
    </message>
    <message id="eventLogClass19">
        <source>Event class 19</source>
        <translation>Tapahtuman luokka 19</translation>
    </message>
    <message id="eventLogTime19">
        <source>Event time 19</source>
        <translation>Tapahtuman aika 19</translation>
    </message>
    <message id="eventLogEvent20">
        <source>Event 20</source>
        <translation>Tapahtuma 20</translation>
    </message>
    <message id="eventLogClass20">
        <source>Event class 20</source>
        <translation>Tapahtuman luokka 20</translation>
    </message>
    <message id="eventLogTime20">
        <source>Event time 20</source>
        <translation>Tapahtuman aika 20</translation>
    </message>
    <message id="eventLogEvent21">
        <source>Event 21</source>
        <translation>Tapahtuma 21</translation>
    </message>
    <message id="eventLogClass21">
        <source>Event class 21</source>
        <translation>Tapahtuman luokka 21</translation>
    </message>
    <message id="eventLogTime21">
        <source>Event time 21</source>
        <translation>Tapahtuman aika 21</translation>
    </message>
    <message id="eventLogEvent22">
        <source>Event 22</source>
        <translation>Tapahtuma 22</translation>
    </message>
    <message id="eventLogClass22">
        <source>Event class 22</source>
        <translation>Tapahtuman luokka 22</translation>
    </message>
    <message id="eventLogTime22">
        <source>Event time 22</source>
        <translation>Tapahtuman aika 22</translation>
    </message>
    <message id="eventLogEvent23">
        <source>Event 23</source>
        <translation>Tapahtuma 23</translation>
    </message>
    <message id="eventLogClass23">
        <source>Event class 23</source>
        <translation>Tapahtuman luokka 23</translation>
    </message>
    <message id="eventLogTime23">
        <source>Event time 23</source>
        <translation>Tapahtuman aika 23</translation>
    </message>
    <message id="eventLogEvent24">
        <source>Event 24</source>
        <translation>Tapahtuma 24</translation>
    </message>
    <message id="eventLogClass24">
        <source>Event class 24</source>
        <translation>Tapahtuman luokka 24</translation>
    </message>
    <message id="eventLogTime24">
        <source>Event time 24</source>
        <translation>Tapahtuman aika 24</translation>
    </message>
    <message id="eventLogEvent25">
        <source>Event 25</source>
        <translation>Tapahtuma 25</translation>
    </message>
    <message id="eventLogClass25">
        <source>Event class 25</source>
        <translation>Tapahtuman luokka 25</translation>
    </message>
    <message id="eventLogTime25">
        <source>Event time 25</source>
        <translation>Tapahtuman aika 25</translation>
    </message>
    <message id="eventLogEvent26">
        <source>Event 26</source>
        <translation>Tapahtuma 26</translation>
    </message>
    <message id="eventLogClass26">
        <source>Event class 26</source>
        <translation>Tapahtuman luokka 26</translation>
    </message>
    <message id="eventLogTime26">
        <source>Event time 26</source>
        <translation>Tapahtuman aika 26</translation>
    </message>
    <message id="eventLogEvent27">
        <source>Event 27</source>
        <translation>Tapahtuma 27</translation>
    </message>
    <message id="eventLogClass27">
        <source>Event class 27</source>
        <translation>Tapahtuman luokka 27</translation>
    </message>
    <message id="eventLogTime27">
        <source>Event time 27</source>
        <translation>Tapahtuman aika 27</translation>
    </message>
    <message id="eventLogEvent28">
        <source>Event 28</source>
        <translation>Tapahtuma 28</translation>
    </message>
    <message id="eventLogClass28">
        <source>Event class 28</source>
        <translation>Tapahtuman luokka 28</translation>
    </message>
    <message id="eventLogTime28">
        <source>Event time 28</source>
        <translation>Tapahtuman aika 28</translation>
    </message>
    <message id="eventLogEvent29">
        <source>Event 29</source>
        <translation>Tapahtuma 29</translation>
    </message>
    <message id="eventLogClass29">
        <source>Event class 29</source>
        <translation>Tapahtuman luokka 29</translation>
    </message>
    <message id="eventLogTime29">
        <source>Event time 29</source>
        <translation>Tapahtuman aika 29</translation>
    </message>
    <message id="shell_settingsUnreadable">
        <source>The settings in %1 cannot be read. The program starts with its usual settings.</source>
        <translation>Asetuksia tiedostossa %1 ei voi lukea. Ohjelma käynnistyy tavallisilla asetuksilla.</translation>
    </message>
    <message id="vx4400eventElectronicsFailure">
        <source>Electronics failure</source>
        <translation>Elektroniikkavika</translation>
    </message>
    <message id="vx4400eventElectronicsFailureOff">
        <source>Electronics failure: ended</source>
        <translation>Elektroniikkavika: päättynyt</translation>
    </message>
    <message id="vx4400eventMemoryFailure">
        <source>Memory failure</source>
        <translation>Muistivika</translation>
    </message>
    <message id="vx4400eventMemoryFailureOff">
        <source>Memory failure: ended</source>
        <translation>Muistivika: päättynyt</translation>
    </message>
    <message id="vx4400eventParameterChecksumError">
        <source>Parameter checksum error</source>
        <translation>Parametrien tarkistussummavirhe</translation>
    </message>
    <message id="vx4400eventParameterChecksumErrorOff">
        <source>Parameter checksum error: ended</source>
        <translation>Parametrien tarkistussummavirhe: päättynyt</translation>
    </message>
    <message id="vx4400eventInternalVoltageLow">
        <source>Internal supply voltage low</source>
        <translation>Sisäinen käyttöjännite matala</translation>
    </message>
    <message id="vx4400eventInternalVoltageLowOff">
        <source>Internal supply voltage low: ended</source>
        <translation>Sisäinen käyttöjännite matala: päättynyt</translation>
    </message>
    <message id="vx4400eventTemperatureHigh">
        <source>Device temperature high</source>
        <translation>Laitteen lämpötila korkea</translation>
    </message>
    <message id="vx4400eventTemperatureHighOff">
        <source>Device temperature high: ended</source>
        <translation>Laitteen lämpötila korkea: päättynyt</translation>
    </message>
    <message id="vx4400eventTemperatureLow">
        <source>Device temperature low</source>
        <translation>Laitteen lämpötila matala</translation>
    </message>
    <message id="vx4400eventTemperatureLowOff">
        <source>Device temperature low: ended</source>
        <translation>Laitteen lämpötila matala: päättynyt</translation>
    </message>
    <message id="vx4400eventCoverOpen">
        <source>Cover open</source>
        <translation>Kansi auki</translation>
    </message>
    <message id="vx4400eventCoverOpenOff">
        <source>Cover open: ended</source>
        <translation>Kansi auki: päättynyt</translation>
    </message>
    <message id="vx4400eventWatchdogReset">
        <source>Reset by watchdog</source>
        <translation>Vahtikoiran aiheuttama uudelleenkäynnistys</translation>
    </message>
    <message id="vx4400eventWatchdogResetOff">
        <source>Reset by watchdog: ended</source>
        <translation>Vahtikoiran aiheuttama uudelleenkäynnistys: päättynyt</translation>
    </message>
    <message id="vx4400eventTravelSensorFailure">
        <source>Travel sensor failure</source>
        <translation>Asema-anturin vika</translation>
    </message>
    <message id="vx4400eventTravelSensorFailureOff">
        <source>Travel sensor failure: ended</source>
        <translation>Asema-anturin vika: päättynyt</translation>
    </message>
    <message id="vx4400eventTravelOutOfRange">
        <source>Travel outside sensor range</source>
        <translation>Asema mittausalueen ulkopuolella</translation>
    </message>
    <message id="vx4400eventTravelOutOfRangeOff">
        <source>Travel outside sensor range: ended</source>
        <translation>Asema mittausalueen ulkopuolella: päättynyt</translation>
    </message>
    <message id="vx4400eventSupplySensorFailure">
        <source>Supply pressure sensor failure</source>
        <translation>Syöttöpaineanturin vika</translation>
    </message>
    <message id="vx4400eventSupplySensorFailureOff">
        <source>Supply pressure sensor failure: ended</source>
        <translation>Syöttöpaineanturin vika: päättynyt</translation>
    </message>
    <message id="vx4400eventActuatorSensorFailure">
        <source>Actuator pressure sensor failure</source>
        <translation>Toimilaitteen paineanturin vika</translation>
    </message>
    <message id="vx4400eventActuatorSensorFailureOff">
        <source>Actuator pressure sensor failure: ended</source>
        <translation>Toimilaitteen paineanturin vika: päättynyt</translation>
    </message>
    <message id="vx4400eventTemperatureSensorFailure">
        <source>Temperature sensor failure</source>
        <translation>Lämpötila-anturin vika</translation>
    </message>
    <message id="vx4400eventTemperatureSensorFailureOff">
        <source>Temperature sensor failure: ended</source>
        <translation>Lämpötila-anturin vika: päättynyt</translation>
    </message>
    <message id="vx4400eventSensorDrift">
        <source>Sensor drift</source>
        <translation>Anturin ryömintä</translation>
    </message>
    <message id="vx4400eventSensorDriftOff">
        <source>Sensor drift: ended</source>
        <translation>Anturin ryömintä: päättynyt</translation>
    </message>
    <message id="vx4400eventSupplyPressureLow">
        <source>Supply pressure low</source>
        <translation>Syöttöpaine matala</translation>
    </message>
    <message id="vx4400eventSupplyPressureLowOff">
        <source>Supply pressure low: ended</source>
        <translation>Syöttöpaine matala: päättynyt</translation>
    </message>
    <message id="vx4400eventSupplyPressureHigh">
        <source>Supply pressure high</source>
        <translation>Syöttöpaine korkea</translation>
    </message>
    <message id="vx4400eventSupplyPressureHighOff">
        <source>Supply pressure high: ended</source>
        <translation>Syöttöpaine korkea: päättynyt</translation>
    </message>
    <message id="vx4400eventSupplyPressureUnstable">
        <source>Supply pressure unstable</source>
        <translation>Syöttöpaine epävakaa</translation>
    </message>
    <message id="vx4400eventSupplyPressureUnstableOff">
        <source>Supply pressure unstable: ended</source>
        <translation>Syöttöpaine epävakaa: päättynyt</translation>
    </message>
    <message id="vx4400eventDriveSaturated">
        <source>Drive signal at its limit</source>
        <translation>Ohjaussignaali rajalla</translation>
    </message>
    <message id="vx4400eventDriveSaturatedOff">
        <source>Drive signal at its limit: ended</source>
        <translation>Ohjaussignaali rajalla: päättynyt</translation>
    </message>
    <message id="vx4400eventPneumaticLeak">
        <source>Pneumatic leak</source>
        <translation>Pneumatiikkavuoto</translation>
    </message>
    <message id="vx4400eventPneumaticLeakOff">
        <source>Pneumatic leak: ended</source>
        <translation>Pneumatiikkavuoto: päättynyt</translation>
    </message>
    <message id="vx4400eventPilotStageFailure">
        <source>Pilot stage failure</source>
        <translation>Esiohjausasteen vika</translation>
    </message>
    <message id="vx4400eventPilotStageFailureOff">
        <source>Pilot stage failure: ended</source>
        <translation>Esiohjausasteen vika: päättynyt</translation>
    </message>
    <message id="vx4400eventExhaustBlocked">
        <source>Exhaust blocked</source>
        <translation>Poistoilma tukossa</translation>
    </message>
    <message id="vx4400eventExhaustBlockedOff">
        <source>Exhaust blocked: ended</source>
        <translation>Poistoilma tukossa: päättynyt</translation>
    </message>
    <message id="vx4400eventTravelDeviation">
        <source>Travel deviation</source>
        <translation>Asemapoikkeama</translation>
    </message>
    <message id="vx4400eventTravelDeviationOff">
        <source>Travel deviation: ended</source>
        <translation>Asemapoikkeama: päättynyt</translation>
    </message>
    <message id="vx4400eventValveStuck">
        <source>Valve stuck</source>
        <translation>Venttiili jumissa</translation>
    </message>
    <message id="vx4400eventValveStuckOff">
        <source>Valve stuck: ended</source>
        <translation>Venttiili jumissa: päättynyt</translation>
    </message>
    <message id="vx4400eventFrictionHigh">
        <source>Friction high</source>
        <translation>Kitka suuri</translation>
    </message>
    <message id="vx4400eventFrictionHighOff">
        <source>Friction high: ended</source>
        <translation>Kitka suuri: päättynyt</translation>
    </message>
    <message id="vx4400eventFrictionLow">
        <source>Friction low</source>
        <translation>Kitka pieni</translation>
    </message>
    <message id="vx4400eventFrictionLowOff">
        <source>Friction low: ended</source>
        <translation>Kitka pieni: päättynyt</translation>
    </message>
    <message id="vx4400eventStickSlip">
        <source>Stick-slip motion</source>
        <translation>Nykivä liike (stick-slip)</translation>
    </message>
    <message id="vx4400eventStickSlipOff">
        <source>Stick-slip motion: ended</source>
        <translation>Nykivä liike (stick-slip): päättynyt</translation>
    </message>
    <message id="vx4400eventTravelHigh">
        <source>Travel high alarm</source>
        <translation>Aseman ylärajahälytys</translation>
    </message>
    <message id="vx4400eventTravelHighOff">
        <source>Travel high alarm: ended</source>
        <translation>Aseman ylärajahälytys: päättynyt</translation>
    </message>
    <message id="vx4400eventTravelLow">
        <source>Travel low alarm</source>
        <translation>Aseman alarajahälytys</translation>
    </message>
    <message id="vx4400eventTravelLowOff">
        <source>Travel low alarm: ended</source>
        <translation>Aseman alarajahälytys: päättynyt</translation>
    </message>
    <message id="vx4400eventCycleCounterLimit">
        <source>Cycle counter limit exceeded</source>
        <translation>Liikelaskurin raja ylitetty</translation>
    </message>
    <message id="vx4400eventCycleCounterLimitOff">
        <source>Cycle counter limit exceeded: ended</source>
        <translation>Liikelaskurin raja ylitetty: päättynyt</translation>
    </message>
    <message id="vx4400eventTravelSumLimit">
        <source>Total travel limit exceeded</source>
        <translation>Kokonaismatkan raja ylitetty</translation>
    </message>
    <message id="vx4400eventTravelSumLimitOff">
        <source>Total travel limit exceeded: ended</source>
        <translation>Kokonaismatkan raja ylitetty: päättynyt</translation>
    </message>
    <message id="vx4400eventSpringFailure">
        <source>Actuator spring failure</source>
        <translation>Toimilaitteen jousivika</translation>
    </message>
    <message id="vx4400eventSpringFailureOff">
        <source>Actuator spring failure: ended</source>
        <translation>Toimilaitteen jousivika: päättynyt</translation>
    </message>
    <message id="vx4400eventSeatWear">
        <source>Seat wear</source>
        <translation>Istukan kuluminen</translation>
    </message>
    <message id="vx4400eventSeatWearOff">
        <source>Seat wear: ended</source>
        <translation>Istukan kuluminen: päättynyt</translation>
    </message>
    <message id="vx4400eventPackingLeak">
        <source>Packing leak</source>
        <translation>Tiivistepesän vuoto</translation>
    </message>
    <message id="vx4400eventPackingLeakOff">
        <source>Packing leak: ended</source>
        <translation>Tiivistepesän vuoto: päättynyt</translation>
    </message>
    <message id="vx4400eventSignalLow">
        <source>Input signal low</source>
        <translation>Tulosignaali matala</translation>
    </message>
    <message id="vx4400eventSignalLowOff">
        <source>Input signal low: ended</source>
        <translation>Tulosignaali matala: päättynyt</translation>
    </message>
    <message id="vx4400eventSignalHigh">
        <source>Input signal high</source>
        <translation>Tulosignaali korkea</translation>
    </message>
    <message id="vx4400eventSignalHighOff">
        <source>Input signal high: ended</source>
        <translation>Tulosignaali korkea: päättynyt</translation>
    </message>
    <message id="vx4400eventSetpointOscillating">
        <source>Set point oscillates</source>
        <translation>Asetusarvo värähtelee</translation>
    </message>
    <message id="vx4400eventSetpointOscillatingOff">
        <source>Set point oscillates: ended</source>
        <translation>Asetusarvo värähtelee: päättynyt</translation>
    </message>
    <message id="vx4400eventCavitation">
        <source>Cavitation</source>
        <translation>Kavitaatio</translation>
    </message>
    <message id="vx4400eventCavitationOff">
        <source>Cavitation: ended</source>
        <translation>Kavitaatio: päättynyt</translation>
    </message>
    <message id="vx4400eventSafetyShutdown">
        <source>Safety shutdown active</source>
        <translation>Turva-alasajo aktiivinen</translation>
    </message>
    <message id="vx4400eventSafetyShutdownOff">
        <source>Safety shutdown active: ended</source>
        <translation>Turva-alasajo aktiivinen: päättynyt</translation>
    </message>
    <message id="vx4400eventStrokeTestFailed">
        <source>Stroke test failed</source>
        <translation>Iskutesti epäonnistui</translation>
    </message>
    <message id="vx4400eventStrokeTestFailedOff">
        <source>Stroke test failed: ended</source>
        <translation>Iskutesti epäonnistui: päättynyt</translation>
    </message>
    <message id="vx4400eventStrokeTestOverdue">
        <source>Stroke test overdue</source>
        <translation>Iskutesti myöhässä</translation>
    </message>
    <message id="vx4400eventStrokeTestOverdueOff">
        <source>Stroke test overdue: ended</source>
        <translation>Iskutesti myöhässä: päättynyt</translation>
    </message>
    <message id="vx4400eventSimulationActive">
        <source>Simulation active</source>
        <translation>Simulointi aktiivinen</translation>
    </message>
    <message id="vx4400eventSimulationActiveOff">
        <source>Simulation active: ended</source>
        <translation>Simulointi aktiivinen: päättynyt</translation>
    </message>
    <message id="vx4400eventLocalOperation">
        <source>Local operation</source>
        <translation>Paikalliskäyttö</translation>
    </message>
    <message id="vx4400eventLocalOperationOff">
        <source>Local operation: ended</source>
        <translation>Paikalliskäyttö: päättynyt</translation>
    </message>
    <message id="vx4400eventLoopCurrentFixed">
        <source>Loop current fixed</source>
        <translation>Silmukkavirta kiinteä</translation>
    </message>
    <message id="vx4400eventLoopCurrentFixedOff">
        <source>Loop current fixed: ended</source>
        <translation>Silmukkavirta kiinteä: päättynyt</translation>
    </message>
    <message id="vx4400eventBusTimeout">
        <source>Bus communication interrupted</source>
        <translation>Väyläliikenne katkennut</translation>
    </message>
    <message id="vx4400eventBusTimeoutOff">
        <source>Bus communication interrupted: ended</source>
        <translation>Väyläliikenne katkennut: päättynyt</translation>
    </message>
    <message id="vx4400eventNotCalibrated">
        <source>Travel not calibrated</source>
        <translation>Asemaa ei ole kalibroitu</translation>
    </message>
    <message id="vx4400eventNotCalibratedOff">
        <source>Travel not calibrated: ended</source>
        <translation>Asemaa ei ole kalibroitu: päättynyt</translation>
    </message>
    <message id="vx4400eventCalibrationRunning">
        <source>Calibration running</source>
        <translation>Kalibrointi käynnissä</translation>
    </message>
    <message id="vx4400eventCalibrationRunningOff">
        <source>Calibration running: ended</source>
        <translation>Kalibrointi käynnissä: päättynyt</translation>
    </message>
    <message id="vx4400eventWriteProtected">
        <source>Write protection on</source>
        <translation>Kirjoitussuojaus päällä</translation>
    </message>
    <message id="vx4400eventWriteProtectedOff">
        <source>Write protection on: ended</source>
        <translation>Kirjoitussuojaus päällä: päättynyt</translation>
    </message>
    <message id="vx4400eventMaintenanceDue">
        <source>Maintenance due</source>
        <translation>Huolto erääntynyt</translation>
    </message>
    <message id="vx4400eventMaintenanceDueOff">
        <source>Maintenance due: ended</source>
        <translation>Huolto erääntynyt: päättynyt</translation>
    </message>
    <message id="vx4400eventMasks">
        <source>Status configuration</source>
        <translation>Tilan konfigurointi</translation>
    </message>
    <message id="vx4400eventMasksOff">
        <source>Status configuration: ended</source>
        <translation>Tilan konfigurointi: päättynyt</translation>
    </message>
    <message id="vx4400eventMask1">
        <source>Status mask, part 1</source>
        <translation>Tilamaski, osa 1</translation>
    </message>
    <message id="vx4400eventMask1Off">
        <source>Status mask, part 1: ended</source>
        <translation>Tilamaski, osa 1: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskInfo1">
        <source>Information mask, part 1</source>
        <translation>Infomaski, osa 1</translation>
    </message>
    <message id="vx4400eventMaskInfo1Off">
        <source>Information mask, part 1: ended</source>
        <translation>Infomaski, osa 1: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskWarning1">
        <source>Warning mask, part 1</source>
        <translation>Varoitusmaski, osa 1</translation>
    </message>
    <message id="vx4400eventMaskWarning1Off">
        <source>Warning mask, part 1: ended</source>
        <translation>Varoitusmaski, osa 1: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskAlarm1">
        <source>Alarm mask, part 1</source>
        <translation>Hälytysmaski, osa 1</translation>
    </message>
    <message id="vx4400eventMaskAlarm1Off">
        <source>Alarm mask, part 1: ended</source>
        <translation>Hälytysmaski, osa 1: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskOnOff1">
        <source>On/off mask, part 1</source>
        <translation>Päällä/pois-maski, osa 1</translation>
    </message>
    <message id="vx4400eventMaskOnOff1Off">
        <source>On/off mask, part 1: ended</source>
        <translation>Päällä/pois-maski, osa 1: päättynyt</translation>
    </message>
    <message id="vx4400eventMask2">
        <source>Status mask, part 2</source>
        <translation>Tilamaski, osa 2</translation>
    </message>
    <message id="vx4400eventMask2Off">
        <source>Status mask, part 2: ended</source>
        <translation>Tilamaski, osa 2: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskInfo2">
        <source>Information mask, part 2</source>
        <translation>Infomaski, osa 2</translation>
    </message>
    <message id="vx4400eventMaskInfo2Off">
        <source>Information mask, part 2: ended</source>
        <translation>Infomaski, osa 2: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskWarning2">
        <source>Warning mask, part 2</source>
        <translation>Varoitusmaski, osa 2</translation>
    </message>
    <message id="vx4400eventMaskWarning2Off">
        <source>Warning mask, part 2: ended</source>
        <translation>Varoitusmaski, osa 2: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskAlarm2">
        <source>Alarm mask, part 2</source>
        <translation>Hälytysmaski, osa 2</translation>
    </message>
    <message id="vx4400eventMaskAlarm2Off">
        <source>Alarm mask, part 2: ended</source>
        <translation>Hälytysmaski, osa 2: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskOnOff2">
        <source>On/off mask, part 2</source>
        <translation>Päällä/pois-maski, osa 2</translation>
    </message>
    <message id="vx4400eventMaskOnOff2Off">
        <source>On/off mask, part 2: ended</source>
        <translation>Päällä/pois-maski, osa 2: päättynyt</translation>
    </message>
    <message id="vx4400eventMask3">
        <source>Status mask, part 3</source>
        <translation>Tilamaski, osa 3</translation>
    </message>
    <message id="vx4400eventMask3Off">
        <source>Status mask, part 3: ended</source>
        <translation>Tilamaski, osa 3: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskInfo3">
        <source>Information mask, part 3</source>
        <translation>Infomaski, osa 3</translation>
    </message>
    <message id="vx4400eventMaskInfo3Off">
        <source>Information mask, part 3: ended</source>
        <translation>Infomaski, osa 3: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskWarning3">
        <source>Warning mask, part 3</source>
        <translation>Varoitusmaski, osa 3</translation>
    </message>
    <message id="vx4400eventMaskWarning3Off">
        <source>Warning mask, part 3: ended</source>
        <translation>Varoitusmaski, osa 3: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskAlarm3">
        <source>Alarm mask, part 3</source>
        <translation>Hälytysmaski, osa 3</translation>
    </message>
    <message id="vx4400eventMaskAlarm3Off">
        <source>Alarm mask, part 3: ended</source>
        <translation>Hälytysmaski, osa 3: päättynyt</translation>
    </message>
    <message id="vx4400eventMaskOnOff3">
        <source>On/off mask, part 3</source>
        <translation>Päällä/pois-maski, osa 3</translation>
    </message>
    <message id="vx4400eventMaskOnOff3Off">
        <source>On/off mask, part 3: ended</source>
        <translation>Päällä/pois-maski, osa 3: päättynyt</translation>
    </message>
    <message id="statusNotRead">
        <source>not read yet</source>
        <translation>ei vielä luettu</translation>
    </message>
    <message id="statusActive">
        <source>active</source>
        <translation>aktiivinen</translation>
    </message>
    <message id="statusNotActive">
        <source>not active</source>
        <translation>ei aktiivinen</translation>
    </message>
    <message id="statusSwitchedOff">
        <source>switched off</source>
        <translation>pois käytöstä</translation>
    </message>
    <message id="statusUnknown">
        <source>unknown</source>
        <translation>tuntematon</translation>
    </message>
    <message id="shell_sectionLiveValues">
        <source>Live values</source>
        <translation>Nykyarvot</translation>
    </message>
    <message id="shell_sectionLimits">
        <source>Limits of the diagnosis</source>
        <translation>Diagnostiikan raja-arvot</translation>
    </message>
    <message id="liveValues">
        <source>Live values</source>
        <translation>Ajantasaiset arvot</translation>
    </message>
    <message id="diagnosisLimits">
        <source>Diagnosis limits</source>
        <translation>Diagnostiikan rajat</translation>
    </message>
    <message id="failsafeAction">
        <source>On loss of signal</source>
        <translation>Signaalin kadotessa</translation>
    </message>
    <message id="failsafeDelay">
        <source>Delay of this action</source>
        <translation>Toiminnon viive</translation>
    </message>
    <message id="serviceInterval">
        <source>Service interval</source>
        <translation>Huoltoväli</translation>
    </message>
    <message id="options">
        <source>Options</source>
        <translation>Valinnat</translation>
    </message>
    <message id="shell_pageOptions">
        <source>Options</source>
        <translation>Valinnat</translation>
    </message>
    <message id="shell_sectionFailsafe">
        <source>Fail-safe behaviour and service</source>
        <translation>Vikatilan toiminta ja huolto</translation>
    </message>
    <message id="shell_sectionAlarmMask">
        <source>Monitoring</source>
        <translation>Valvonta</translation>
    </message>
    <message id="shell_settings">
        <source>&amp;Settings…</source>
        <translation>&amp;Asetukset…</translation>
    </message>
    <message id="shell_settingsTip">
        <source>Language, display units and classification</source>
        <translation>Kieli, näyttöyksiköt ja luokitus</translation>
    </message>
    <message id="shell_restartDevice">
        <source>Restart &amp;device</source>
        <translation>&amp;Käynnistä laite uudelleen</translation>
    </message>
    <message id="shell_restartDeviceTip">
        <source>The power of the simulated device goes and comes back</source>
        <translation>Simuloidun laitteen syöttö katkeaa ja palaa</translation>
    </message>
    <message id="shell_simulationMeter">
        <source>Meter in the loop</source>
        <translation>Virtasilmukan mittari</translation>
    </message>
    <message id="shell_addressRefused">
        <source>The device did not take the address.</source>
        <translation>Laite ei hyväksynyt osoitetta.</translation>
    </message>
    <message id="shell_addressChanged">
        <source>The device has the address %1 now.</source>
        <translation>Laitteen osoite on nyt %1.</translation>
    </message>
    <message id="shell_documentKept">
        <source>The bus configuration was saved.</source>
        <translation>Väyläkonfiguraatio tallennettiin.</translation>
    </message>
    <message id="paTag">
        <source>Tag</source>
        <translation>Positio</translation>
    </message>
    <message id="busAddress">
        <source>Bus address</source>
        <translation>Väyläosoite</translation>
    </message>
</context>
</TS>
