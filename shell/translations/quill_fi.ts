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
        <source>Current 4 to 20 mA</source>
        <translation>Virta 4–20 mA</translation>
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
        <translation>Liike</translation>
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
        <source>sample VX4400H</source>
        <translation>esimerkki VX4400H</translation>
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
        <source>Open the &amp;sample</source>
        <translation>Avaa &amp;esimerkki</translation>
    </message>
    <message id="shell_openSampleTip">
        <source>Opens the sample datafile of the VX4400H</source>
        <translation>Avaa VX4400H:n esimerkkitiedoston</translation>
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
        <source>Alarms and burst mode</source>
        <translation>Hälytykset ja purskelähetys</translation>
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
</context>
</TS>
