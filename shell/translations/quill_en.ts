<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="manufacturer">
        <source>Manufacturer</source>
        <translation>Manufacturer</translation>
    </message>
    <message id="deviceModel">
        <source>Device model</source>
        <translation>Device model</translation>
    </message>
    <message id="deviceId">
        <source>Device identifier</source>
        <translation>Device identifier</translation>
    </message>
    <message id="serialNumber">
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message id="hardwareRevision">
        <source>Hardware revision</source>
        <translation>Hardware revision</translation>
    </message>
    <message id="softwareRevision">
        <source>Software revision</source>
        <translation>Software revision</translation>
    </message>
    <message id="tag">
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message id="longTag">
        <source>Long tag</source>
        <translation>Long tag</translation>
    </message>
    <message id="descriptor">
        <source>Descriptor</source>
        <translation>Descriptor</translation>
    </message>
    <message id="message">
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message id="installationDate">
        <source>Installation date</source>
        <translation>Installation date</translation>
    </message>
    <message id="finalAssemblyNumber">
        <source>Final assembly number</source>
        <translation>Final assembly number</translation>
    </message>
    <message id="pollingAddress">
        <source>Polling address</source>
        <translation>Polling address</translation>
    </message>
    <message id="valveType">
        <source>Valve type</source>
        <translation>Valve type</translation>
    </message>
    <message id="actuatorType">
        <source>Actuator type</source>
        <translation>Actuator type</translation>
    </message>
    <message id="ratedTravel">
        <source>Rated travel</source>
        <translation>Rated travel</translation>
    </message>
    <message id="gearFactor">
        <source>Gear factor</source>
        <translation>Gear factor</translation>
    </message>
    <message id="travelLowLimit">
        <source>Travel limit, low</source>
        <translation>Travel limit, low</translation>
    </message>
    <message id="travelHighLimit">
        <source>Travel limit, high</source>
        <translation>Travel limit, high</translation>
    </message>
    <message id="openingTime">
        <source>Opening time</source>
        <translation>Opening time</translation>
    </message>
    <message id="closingTime">
        <source>Closing time</source>
        <translation>Closing time</translation>
    </message>
    <message id="supplyPressure">
        <source>Supply pressure</source>
        <translation>Supply pressure</translation>
    </message>
    <message id="supplyLowPressure">
        <source>Supply pressure limit, low</source>
        <translation>Supply pressure limit, low</translation>
    </message>
    <message id="supplyHighPressure">
        <source>Supply pressure limit, high</source>
        <translation>Supply pressure limit, high</translation>
    </message>
    <message id="actuatorPressure">
        <source>Actuator pressure</source>
        <translation>Actuator pressure</translation>
    </message>
    <message id="ambientAbsolutePressure">
        <source>Ambient pressure</source>
        <translation>Ambient pressure</translation>
    </message>
    <message id="signalDirection">
        <source>Signal direction</source>
        <translation>Signal direction</translation>
    </message>
    <message id="signalLowCurrent">
        <source>Signal range, low</source>
        <translation>Signal range, low</translation>
    </message>
    <message id="signalHighCurrent">
        <source>Signal range, high</source>
        <translation>Signal range, high</translation>
    </message>
    <message id="characteristic">
        <source>Characteristic</source>
        <translation>Characteristic</translation>
    </message>
    <message id="curveInput_1">
        <source>Curve input 1</source>
        <translation>Curve input 1</translation>
    </message>
    <message id="curveOutput_1">
        <source>Curve output 1</source>
        <translation>Curve output 1</translation>
    </message>
    <message id="curveInput_2">
        <source>Curve input 2</source>
        <translation>Curve input 2</translation>
    </message>
    <message id="curveOutput_2">
        <source>Curve output 2</source>
        <translation>Curve output 2</translation>
    </message>
    <message id="filterTime">
        <source>Filter time</source>
        <translation>Filter time</translation>
    </message>
    <message id="tuningSet">
        <source>Tuning set</source>
        <translation>Tuning set</translation>
    </message>
    <message id="proportionalGain">
        <source>Proportional gain</source>
        <translation>Proportional gain</translation>
    </message>
    <message id="integralTime">
        <source>Integral time</source>
        <translation>Integral time</translation>
    </message>
    <message id="derivativeTime">
        <source>Derivative time</source>
        <translation>Derivative time</translation>
    </message>
    <message id="travelDeadband">
        <source>Travel deadband</source>
        <translation>Travel deadband</translation>
    </message>
    <message id="alarmMask">
        <source>Active alarms</source>
        <translation>Active alarms</translation>
    </message>
    <message id="alarmHighTravel">
        <source>Travel alarm, high</source>
        <translation>Travel alarm, high</translation>
    </message>
    <message id="alarmLowTravel">
        <source>Travel alarm, low</source>
        <translation>Travel alarm, low</translation>
    </message>
    <message id="alarmHighAction">
        <source>Action on high alarm</source>
        <translation>Action on high alarm</translation>
    </message>
    <message id="alarmLowAction">
        <source>Action on low alarm</source>
        <translation>Action on low alarm</translation>
    </message>
    <message id="alarmHighAction_2">
        <source>Action on second high alarm</source>
        <translation>Action on second high alarm</translation>
    </message>
    <message id="alarmHighTemperature">
        <source>Temperature alarm, high</source>
        <translation>Temperature alarm, high</translation>
    </message>
    <message id="alarmLowTemperature">
        <source>Temperature alarm, low</source>
        <translation>Temperature alarm, low</translation>
    </message>
    <message id="alarmLatchMode">
        <source>Alarm latching</source>
        <translation>Alarm latching</translation>
    </message>
    <message id="burstMode">
        <source>Burst mode</source>
        <translation>Burst mode</translation>
    </message>
    <message id="burstCommand">
        <source>Burst command</source>
        <translation>Burst command</translation>
    </message>
    <message id="burstVariable_1">
        <source>Burst variable 1</source>
        <translation>Burst variable 1</translation>
    </message>
    <message id="burstVariable_2">
        <source>Burst variable 2</source>
        <translation>Burst variable 2</translation>
    </message>
    <message id="minimumBurstPeriod">
        <source>Burst period, minimum</source>
        <translation>Burst period, minimum</translation>
    </message>
    <message id="maximumBurstPeriod">
        <source>Burst period, maximum</source>
        <translation>Burst period, maximum</translation>
    </message>
    <message id="secondaryOutput">
        <source>Secondary output</source>
        <translation>Secondary output</translation>
    </message>
    <message id="outputFailureCurrent">
        <source>Output current on failure</source>
        <translation>Output current on failure</translation>
    </message>
    <message id="writeProtectionMode">
        <source>Write protection</source>
        <translation>Write protection</translation>
    </message>
    <message id="maintenanceDate">
        <source>Next maintenance</source>
        <translation>Next maintenance</translation>
    </message>
    <message id="dailyTestTime">
        <source>Time of the daily test</source>
        <translation>Time of the daily test</translation>
    </message>
    <message id="strokeTestInterval">
        <source>Interval of the stroke test</source>
        <translation>Interval of the stroke test</translation>
    </message>
    <message id="deviceTemperature">
        <source>Device temperature</source>
        <translation>Device temperature</translation>
    </message>
    <message id="maximumTemperature">
        <source>Highest temperature</source>
        <translation>Highest temperature</translation>
    </message>
    <message id="minimumTemperature">
        <source>Lowest temperature</source>
        <translation>Lowest temperature</translation>
    </message>
    <message id="operatingTime">
        <source>Operating time</source>
        <translation>Operating time</translation>
    </message>
    <message id="cycleCounter">
        <source>Valve cycles</source>
        <translation>Valve cycles</translation>
    </message>
    <message id="globeValve">
        <source>Globe valve</source>
        <translation>Globe valve</translation>
    </message>
    <message id="ballValve">
        <source>Ball valve</source>
        <translation>Ball valve</translation>
    </message>
    <message id="butterflyValve">
        <source>Butterfly valve</source>
        <translation>Butterfly valve</translation>
    </message>
    <message id="rotaryPlugValve">
        <source>Rotary plug valve</source>
        <translation>Rotary plug valve</translation>
    </message>
    <message id="singleActing">
        <source>Single acting</source>
        <translation>Single acting</translation>
    </message>
    <message id="doubleActing">
        <source>Double acting</source>
        <translation>Double acting</translation>
    </message>
    <message id="gearDirect">
        <source>Direct</source>
        <translation>Direct</translation>
    </message>
    <message id="gearDouble">
        <source>Double</source>
        <translation>Double</translation>
    </message>
    <message id="gearFourfold">
        <source>Fourfold</source>
        <translation>Fourfold</translation>
    </message>
    <message id="signalOpens">
        <source>Rising signal opens</source>
        <translation>Rising signal opens</translation>
    </message>
    <message id="signalCloses">
        <source>Rising signal closes</source>
        <translation>Rising signal closes</translation>
    </message>
    <message id="linear">
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message id="equalPercentage">
        <source>Equal percentage</source>
        <translation>Equal percentage</translation>
    </message>
    <message id="quickOpening">
        <source>Quick opening</source>
        <translation>Quick opening</translation>
    </message>
    <message id="userCurve">
        <source>User-defined</source>
        <translation>User-defined</translation>
    </message>
    <message id="tuningSlow">
        <source>Slow</source>
        <translation>Slow</translation>
    </message>
    <message id="tuningNormal">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="tuningFast">
        <source>Fast</source>
        <translation>Fast</translation>
    </message>
    <message id="tuningUser">
        <source>User-tuned</source>
        <translation>User-tuned</translation>
    </message>
    <message id="noAction">
        <source>No action</source>
        <translation>No action</translation>
    </message>
    <message id="alarmOnly">
        <source>Alarm only</source>
        <translation>Alarm only</translation>
    </message>
    <message id="moveOpen">
        <source>Move open</source>
        <translation>Move open</translation>
    </message>
    <message id="moveClosed">
        <source>Move closed</source>
        <translation>Move closed</translation>
    </message>
    <message id="holdPosition">
        <source>Hold position</source>
        <translation>Hold position</translation>
    </message>
    <message id="off">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="on">
        <source>On</source>
        <translation>On</translation>
    </message>
    <message id="variableTravel">
        <source>Valve travel</source>
        <translation>Valve travel</translation>
    </message>
    <message id="variableSetpoint">
        <source>Setpoint</source>
        <translation>Setpoint</translation>
    </message>
    <message id="variablePressure">
        <source>Actuator pressure</source>
        <translation>Actuator pressure</translation>
    </message>
    <message id="variableTemperature">
        <source>Device temperature</source>
        <translation>Device temperature</translation>
    </message>
    <message id="commandPrimary">
        <source>1: primary variable</source>
        <translation>1: primary variable</translation>
    </message>
    <message id="commandCurrent">
        <source>2: current and percent</source>
        <translation>2: current and percent</translation>
    </message>
    <message id="commandDynamic">
        <source>3: dynamic variables</source>
        <translation>3: dynamic variables</translation>
    </message>
    <message id="commandStatus">
        <source>9: variables with status</source>
        <translation>9: variables with status</translation>
    </message>
    <message id="outputCurrent">
        <source>Output current</source>
        <translation>Output current</translation>
    </message>
    <message id="outputSwitch">
        <source>Limit switch</source>
        <translation>Limit switch</translation>
    </message>
    <message id="Not In Use">
        <source>Not In Use</source>
        <translation>Not In Use</translation>
    </message>
    <message id="maskTravel">
        <source>Travel</source>
        <translation>Travel</translation>
    </message>
    <message id="maskPressure">
        <source>Supply pressure</source>
        <translation>Supply pressure</translation>
    </message>
    <message id="maskTemperature">
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message id="maskSignal">
        <source>Input signal</source>
        <translation>Input signal</translation>
    </message>
    <message id="maskFriction">
        <source>Friction</source>
        <translation>Friction</translation>
    </message>
    <message id="identification">
        <source>Identification</source>
        <translation>Identification</translation>
    </message>
    <message id="diagnostics">
        <source>Diagnostics</source>
        <translation>Diagnostics</translation>
    </message>
    <message id="assembly">
        <source>Assembly</source>
        <translation>Assembly</translation>
    </message>
    <message id="pressure">
        <source>Pressure</source>
        <translation>Pressure</translation>
    </message>
    <message id="signal">
        <source>Input signal</source>
        <translation>Input signal</translation>
    </message>
    <message id="tuning">
        <source>Tuning</source>
        <translation>Tuning</translation>
    </message>
    <message id="alarms">
        <source>Alarms</source>
        <translation>Alarms</translation>
    </message>
    <message id="burst">
        <source>Burst</source>
        <translation>Burst</translation>
    </message>
    <message id="output">
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message id="maintenance">
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message id="absolutePressure">
        <source>Absolute pressure</source>
        <translation>Absolute pressure</translation>
    </message>
    <message id="temperature">
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message id="temperatureDifference">
        <source>Temperature difference</source>
        <translation>Temperature difference</translation>
    </message>
    <message id="travel">
        <source>Travel</source>
        <translation>Travel</translation>
    </message>
    <message id="length">
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message id="angle">
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message id="time">
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message id="frequency">
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message id="current">
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message id="voltage">
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message id="resistance">
        <source>Resistance</source>
        <translation>Resistance</translation>
    </message>
    <message id="flow">
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message id="massFlow">
        <source>Mass flow</source>
        <translation>Mass flow</translation>
    </message>
    <message id="volume">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="weight">
        <source>Weight</source>
        <translation>Weight</translation>
    </message>
    <message id="density">
        <source>Density</source>
        <translation>Density</translation>
    </message>
    <message id="speed">
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message id="force">
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message id="torque">
        <source>Torque</source>
        <translation>Torque</translation>
    </message>
    <message id="power">
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message id="changeConfirm">
        <source>Confirm changes</source>
        <translation>Confirm changes</translation>
    </message>
    <message id="parameter">
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message id="valueOld">
        <source>Old value</source>
        <translation>Old value</translation>
    </message>
    <message id="valueNew">
        <source>New value</source>
        <translation>New value</translation>
    </message>
    <message id="showAllParameters">
        <source>Show also non-modified values</source>
        <translation>Show also non-modified values</translation>
    </message>
    <message id="accept">
        <source>Accept</source>
        <translation>Accept</translation>
    </message>
    <message id="download">
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message id="unSelect">
        <source>Unselect</source>
        <translation>Unselect</translation>
    </message>
    <message id="close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="languageSelection">
        <source>Select language</source>
        <translation>Select language</translation>
    </message>
    <message id="statusClassificationSelection">
        <source>Select status classification</source>
        <translation>Select status classification</translation>
    </message>
    <message id="statusSeverity">
        <source>Severity</source>
        <translation>Severity</translation>
    </message>
    <message id="statusNAMUR">
        <source>NAMUR</source>
        <translation>NAMUR</translation>
    </message>
    <message id="selectUnits">
        <source>Select units</source>
        <translation>Select units</translation>
    </message>
    <message id="changeAllUnits">
        <source>Change all parameters into</source>
        <translation>Change all parameters into</translation>
    </message>
    <message id="siUnits">
        <source>SI units</source>
        <translation>SI units</translation>
    </message>
    <message id="usUnits">
        <source>US units</source>
        <translation>US units</translation>
    </message>
    <message id="ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="apply">
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message id="none">
        <source>None</source>
        <translation>None</translation>
    </message>
    <message id="yes">
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message id="no">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="Inappropriate input">
        <source>Inappropriate input</source>
        <translation>Inappropriate input</translation>
    </message>
    <message id="missingItems">
        <source>The device does not have these parameters:</source>
        <translation>The device does not have these parameters:</translation>
    </message>
    <message id="commandIsNotImplemented">
        <source>The device does not know this command.</source>
        <translation>The device does not know this command.</translation>
    </message>
    <message id="communicationError">
        <source>The device does not answer. Check the connection and read again.</source>
        <translation>The device does not answer. Check the connection and read again.</translation>
    </message>
    <message id="errCommunicationError">
        <source>Communication with the device failed. Check the connection and try again.</source>
        <translation>Communication with the device failed. Check the connection and try again.</translation>
    </message>
    <message id="hartCmdErrSuspiciousCalibration">
        <source>The device refused: the calibration looks wrong. Check the travel limits and calibrate again.</source>
        <translation>The device refused: the calibration looks wrong. Check the travel limits and calibrate again.</translation>
    </message>
    <message id="hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed">
        <source>The device refused: the recipe is not calibrated, or the pulp type is not allowed.</source>
        <translation>The device refused: the recipe is not calibrated, or the pulp type is not allowed.</translation>
    </message>
    <message id="hartCmdErrNoDataAvailable">
        <source>The device has no data of this kind yet.</source>
        <translation>The device has no data of this kind yet.</translation>
    </message>
    <message id="hartCmdErrInvalidSelection">
        <source>The device did not take these values. Enter other values:</source>
        <translation>The device did not take these values. Enter other values:</translation>
    </message>
    <message id="hartCmdErrAccessRestricted">
        <source>These parameters can only be read:</source>
        <translation>These parameters can only be read:</translation>
    </message>
    <message id="errTestDataNoDataError">
        <source>There is no test data.</source>
        <translation>There is no test data.</translation>
    </message>
    <message id="noDialogs">
        <source>The system does not allow dialogs here.</source>
        <translation>The system does not allow dialogs here.</translation>
    </message>
    <message id="noFileSelectionDialog">
        <source>Files cannot be chosen here. The file is %1</source>
        <translation>Files cannot be chosen here. The file is %1</translation>
    </message>
    <message id="reading">
        <source>Reading from the device</source>
        <translation>Reading from the device</translation>
    </message>
    <message id="writing">
        <source>Writing to the device</source>
        <translation>Writing to the device</translation>
    </message>
    <message id="pleaseCheckTheValues">
        <source>Please check the values.</source>
        <translation>Please check the values.</translation>
    </message>
    <message id="configuration">
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message id="infoCharacteristic">
        <source>How travel follows the input signal</source>
        <translation>How travel follows the input signal</translation>
    </message>
    <message id="infoCharacteristic_linear">
        <source>Travel is proportional to the signal.</source>
        <translation>Travel is proportional to the signal.</translation>
    </message>
    <message id="infoCharacteristic_equalPercentage">
        <source>Equal steps of the signal change the flow by equal percentages.</source>
        <translation>Equal steps of the signal change the flow by equal percentages.</translation>
    </message>
    <message id="infoCharacteristic_quickOpening">
        <source>The valve opens fast at the start of the signal range.</source>
        <translation>The valve opens fast at the start of the signal range.</translation>
    </message>
    <message id="infoCharacteristic_userCurve">
        <source>Travel follows the points of the curve.</source>
        <translation>Travel follows the points of the curve.</translation>
    </message>
    <message id="shell_title">
        <source>Quill – %1</source>
        <translation>Quill – %1</translation>
    </message>
    <message id="shell_titleModified">
        <source>Quill – %1 (not saved)</source>
        <translation>Quill – %1 (not saved)</translation>
    </message>
    <message id="shell_sampleName">
        <source>sample %1</source>
        <translation>sample %1</translation>
    </message>
    <message id="shell_menuFile">
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message id="shell_menuDevice">
        <source>&amp;Device</source>
        <translation>&amp;Device</translation>
    </message>
    <message id="shell_menuView">
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message id="shell_menuHelp">
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message id="shell_open">
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message id="shell_openTip">
        <source>Opens a datafile</source>
        <translation>Opens a datafile</translation>
    </message>
    <message id="shell_openSample">
        <source>Open a &amp;sample</source>
        <translation>Open a &amp;sample</translation>
    </message>
    <message id="shell_openSampleTip">
        <source>Opens the datafile of a sample device</source>
        <translation>Opens the datafile of a sample device</translation>
    </message>
    <message id="shell_save">
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message id="shell_saveTip">
        <source>Saves the datafile</source>
        <translation>Saves the datafile</translation>
    </message>
    <message id="shell_saveAs">
        <source>Save &amp;as…</source>
        <translation>Save &amp;as…</translation>
    </message>
    <message id="shell_quit">
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="shell_datafiles">
        <source>Datafiles</source>
        <translation>Datafiles</translation>
    </message>
    <message id="shell_allFiles">
        <source>All files</source>
        <translation>All files</translation>
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
        <translation>&amp;Connect</translation>
    </message>
    <message id="shell_connectTip">
        <source>Connects to the device or disconnects</source>
        <translation>Connects to the device or disconnects</translation>
    </message>
    <message id="shell_transferRuns">
        <source>Communication is running. Editing is barred meanwhile.</source>
        <translation>Communication is running. Editing is barred meanwhile.</translation>
    </message>
    <message id="shell_readPage">
        <source>&amp;Read this page</source>
        <translation>&amp;Read this page</translation>
    </message>
    <message id="shell_readPageTip">
        <source>Reads the parameters of this page from the device</source>
        <translation>Reads the parameters of this page from the device</translation>
    </message>
    <message id="shell_readAll">
        <source>Read &amp;all</source>
        <translation>Read &amp;all</translation>
    </message>
    <message id="shell_readAllTip">
        <source>Reads all parameters from the device</source>
        <translation>Reads all parameters from the device</translation>
    </message>
    <message id="shell_changes">
        <source>&amp;Changes…</source>
        <translation>&amp;Changes…</translation>
    </message>
    <message id="shell_changesTip">
        <source>Shows the pending changes</source>
        <translation>Shows the pending changes</translation>
    </message>
    <message id="shell_language">
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message id="shell_userLevel">
        <source>User level</source>
        <translation>User level</translation>
    </message>
    <message id="shell_userLevel1">
        <source>Observer</source>
        <translation>Observer</translation>
    </message>
    <message id="shell_userLevel2">
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message id="shell_userLevel3">
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message id="shell_userLevel4">
        <source>Specialist</source>
        <translation>Specialist</translation>
    </message>
    <message id="shell_pages">
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message id="shell_log">
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message id="shell_logClear">
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message id="shell_logTime">
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message id="shell_logCategory">
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message id="shell_logText">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="shell_about">
        <source>&amp;About Quill</source>
        <translation>&amp;About Quill</translation>
    </message>
    <message id="shell_aboutText">
        <source>A reference host for the Quill controls with a simulated valve positioner.</source>
        <translation>A reference host for the Quill controls with a simulated valve positioner.</translation>
    </message>
    <message id="shell_aboutVersion">
        <source>Version %1, under the Apache License 2.0</source>
        <translation>Version %1, under the Apache License 2.0</translation>
    </message>
    <message id="shell_saved">
        <source>Saved: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message id="shell_opened">
        <source>Opened: %1</source>
        <translation>Opened: %1</translation>
    </message>
    <message id="shell_editCount">
        <source>Pending changes: %1</source>
        <translation>Pending changes: %1</translation>
    </message>
    <message id="shell_closeTitle">
        <source>Unsaved changes</source>
        <translation>Unsaved changes</translation>
    </message>
    <message id="shell_readQuestion">
        <source>Reading replaces the edits of these parameters. Read?</source>
        <translation>Reading replaces the edits of these parameters. Read?</translation>
    </message>
    <message id="shell_userLevelTooLow">
        <source>Your user level does not allow changes on the device.</source>
        <translation>Your user level does not allow changes on the device.</translation>
    </message>
    <message id="shell_offlineNoRequest">
        <source>This needs the device. Go online first.</source>
        <translation>This needs the device. Go online first.</translation>
    </message>
    <message id="shell_errNoFile">
        <source>The file %1 does not exist. Choose another file.</source>
        <translation>The file %1 does not exist. Choose another file.</translation>
    </message>
    <message id="shell_errUnreadable">
        <source>The file %1 cannot be read. Check that you may read it, or choose another file.</source>
        <translation>The file %1 cannot be read. Check that you may read it, or choose another file.</translation>
    </message>
    <message id="shell_errEncoding">
        <source>The datafile has a character encoding that cannot be read: %1. Save it as UTF-8 and open it again.</source>
        <translation>The datafile has a character encoding that cannot be read: %1. Save it as UTF-8 and open it again.</translation>
    </message>
    <message id="shell_errNoDatafile">
        <source>This is no datafile: %1. Choose another file.</source>
        <translation>This is no datafile: %1. Choose another file.</translation>
    </message>
    <message id="shell_errNoFolder">
        <source>The folder %1 does not exist. Choose another folder.</source>
        <translation>The folder %1 does not exist. Choose another folder.</translation>
    </message>
    <message id="shell_errIsFolder">
        <source>%1 is a folder. Choose a file name.</source>
        <translation>%1 is a folder. Choose a file name.</translation>
    </message>
    <message id="shell_errNoName">
        <source>The datafile has no file name yet. Save it under a name.</source>
        <translation>The datafile has no file name yet. Save it under a name.</translation>
    </message>
    <message id="shell_errWrite">
        <source>The file could not be written, the old one is unchanged: %1. Free some space or choose another folder.</source>
        <translation>The file could not be written, the old one is unchanged: %1. Free some space or choose another folder.</translation>
    </message>
    <message id="shell_errPatch">
        <source>The changes could not be put into the datafile, which is unchanged: %1. Check the value of this parameter.</source>
        <translation>The changes could not be put into the datafile, which is unchanged: %1. Check the value of this parameter.</translation>
    </message>
    <!-- The window -->
    <message id="shell_disconnect">
        <source>&amp;Disconnect</source>
        <translation>&amp;Disconnect</translation>
    </message>
    <message id="shell_lastRead">
        <source>Last read:</source>
        <translation>Last read:</translation>
    </message>
    <message id="shell_readSection">
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message id="shell_pageIdentification">
        <source>Identification</source>
        <translation>Identification</translation>
    </message>
    <message id="shell_pageConfiguration">
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message id="shell_pageTuning">
        <source>Tuning and output</source>
        <translation>Tuning and output</translation>
    </message>
    <message id="shell_pageAlarms">
        <source>Alarms</source>
        <translation>Alarms</translation>
    </message>
    <message id="shell_pageDiagnostics">
        <source>Diagnostics</source>
        <translation>Diagnostics</translation>
    </message>
    <message id="shell_sectionDevice">
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message id="shell_sectionInstallation">
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message id="shell_sectionAssembly">
        <source>Valve assembly</source>
        <translation>Valve assembly</translation>
    </message>
    <message id="shell_sectionSignal">
        <source>Input signal</source>
        <translation>Input signal</translation>
    </message>
    <message id="shell_sectionPressure">
        <source>Pressures</source>
        <translation>Pressures</translation>
    </message>
    <message id="shell_sectionMaintenance">
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message id="shell_sectionTuning">
        <source>Tuning</source>
        <translation>Tuning</translation>
    </message>
    <message id="shell_sectionCurve">
        <source>User curve</source>
        <translation>User curve</translation>
    </message>
    <message id="shell_sectionOutput">
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message id="shell_sectionAlarms">
        <source>Alarms</source>
        <translation>Alarms</translation>
    </message>
    <message id="shell_sectionBurst">
        <source>Burst mode</source>
        <translation>Burst mode</translation>
    </message>
    <message id="shell_sectionDiagnostics">
        <source>Device condition</source>
        <translation>Device condition</translation>
    </message>
    <message id="shell_dark">
        <source>&amp;Dark colours</source>
        <translation>&amp;Dark colours</translation>
    </message>
    <message id="shell_darkTip">
        <source>Light texts on a dark ground</source>
        <translation>Light texts on a dark ground</translation>
    </message>
    <message id="shell_menuUnits">
        <source>&amp;Units</source>
        <translation>&amp;Units</translation>
    </message>
    <message id="shell_unitsmetric">
        <source>Metric</source>
        <translation>Metric</translation>
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
        <translation>&amp;Save</translation>
    </message>
    <message id="shell_answerDiscard">
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message id="shell_saveQuestion">
        <source>%1 has changes that are not saved. Save them?</source>
        <translation>%1 has changes that are not saved. Save them?</translation>
    </message>
    <message id="shell_wordModified">
        <source>modified</source>
        <translation>modified</translation>
    </message>
    <message id="shell_wordError">
        <source>not correct</source>
        <translation>not correct</translation>
    </message>
    <message id="shell_logState">
        <source>State</source>
        <translation>State</translation>
    </message>
    <message id="shell_logMessage">
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message id="shell_logError">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="shell_logDetail">
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message id="shell_logShowDetails">
        <source>Show details</source>
        <translation>Show details</translation>
    </message>
    <message id="shell_state_edited">
        <source>edited</source>
        <translation>edited</translation>
    </message>
    <message id="shell_state_editedError">
        <source>edited, not correct</source>
        <translation>edited, not correct</translation>
    </message>
    <message id="shell_state_corrected">
        <source>corrected</source>
        <translation>corrected</translation>
    </message>
    <message id="shell_state_original">
        <source>as before</source>
        <translation>as before</translation>
    </message>
    <message id="shell_state_notRead">
        <source>not read</source>
        <translation>not read</translation>
    </message>
    <message id="shell_state_sync">
        <source>in step with the device</source>
        <translation>in step with the device</translation>
    </message>
    <message id="shell_state_syncError">
        <source>communication error</source>
        <translation>communication error</translation>
    </message>
    <message id="shell_state_reSync">
        <source>in step with the device again</source>
        <translation>in step with the device again</translation>
    </message>
    <!-- End of the window -->
    <message id="shell_pageStatus">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="shell_pageStatusConfiguration">
        <source>Status configuration</source>
        <translation>Status configuration</translation>
    </message>
    <message id="shell_sampleVX4400H">
        <source>VX4400&amp;H (HART)</source>
        <translation>VX4400&amp;H (HART)</translation>
    </message>
    <message id="shell_sampleVX4400F">
        <source>VX4400&amp;F (fieldbus)</source>
        <translation>VX4400&amp;F (fieldbus)</translation>
    </message>
    <message id="shell_showStatus">
        <source>Device s&amp;tatus</source>
        <translation>Device s&amp;tatus</translation>
    </message>
    <message id="shell_showStatusTip">
        <source>Shows the page with the device's status</source>
        <translation>Shows the page with the device's status</translation>
    </message>
    <message id="shell_deviceStatusIs">
        <source>Device status: %1</source>
        <translation>Device status: %1</translation>
    </message>
    <message id="shell_configurationChanged">
        <source>Configuration changed</source>
        <translation>Configuration changed</translation>
    </message>
    <message id="shell_clearChanged">
        <source>&amp;Acknowledge changed configuration</source>
        <translation>&amp;Acknowledge changed configuration</translation>
    </message>
    <message id="shell_clearChangedTip">
        <source>Clears the device's sign that its configuration was changed</source>
        <translation>Clears the device's sign that its configuration was changed</translation>
    </message>
    <message id="shell_acknowledge">
        <source>Acknowledge</source>
        <translation>Acknowledge</translation>
    </message>
    <message id="shell_menuClassification">
        <source>Status &amp;classification</source>
        <translation>Status &amp;classification</translation>
    </message>
    <message id="shell_classificationSeverity">
        <source>&amp;Severity</source>
        <translation>&amp;Severity</translation>
    </message>
    <message id="shell_classificationNamur">
        <source>&amp;NAMUR NE 107</source>
        <translation>&amp;NAMUR NE 107</translation>
    </message>
    <message id="shell_classificationTip">
        <source>How the device's conditions are classified</source>
        <translation>How the device's conditions are classified</translation>
    </message>
    <message id="deviceStatus">
        <source>Device status</source>
        <translation>Device status</translation>
    </message>
    <message id="deviceStatusNAMUR">
        <source>Device status (NAMUR)</source>
        <translation>Device status (NAMUR)</translation>
    </message>
    <message id="deviceStatusMasks">
        <source>Status masks</source>
        <translation>Status masks</translation>
    </message>
    <message id="statusConfiguration">
        <source>Status configuration</source>
        <translation>Status configuration</translation>
    </message>
    <message id="deviceFailure">
        <source>Failure</source>
        <translation>Failure</translation>
    </message>
    <message id="deviceUnderTest">
        <source>Function check</source>
        <translation>Function check</translation>
    </message>
    <message id="deviceOffSpecification">
        <source>Out of spec</source>
        <translation>Out of spec</translation>
    </message>
    <message id="deviceMaintenanceRequired">
        <source>Maintenance required</source>
        <translation>Maintenance required</translation>
    </message>
    <message id="deviceInfo">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="deviceOk">
        <source>Good</source>
        <translation>Good</translation>
    </message>
    <message id="deviceDiagnosisPassiv">
        <source>Diagnosis inactive</source>
        <translation>Diagnosis inactive</translation>
    </message>
    <message id="failsafe">
        <source>Fail-safe</source>
        <translation>Fail-safe</translation>
    </message>
    <message id="alarm">
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message id="warning">
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message id="info">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="inactive">
        <source>Switched off</source>
        <translation>Switched off</translation>
    </message>
    <message id="notMonitored">
        <source>Not monitored</source>
        <translation>Not monitored</translation>
    </message>
    <message id="unknown">
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message id="checkEnabled">
        <source>Switched on</source>
        <translation>Switched on</translation>
    </message>
    <message id="checkDisabled">
        <source>Switched off</source>
        <translation>Switched off</translation>
    </message>
    <message id="checkEnabledmodified">
        <source>Switched on, changed</source>
        <translation>Switched on, changed</translation>
    </message>
    <message id="checkDisabledmodified">
        <source>Switched off, changed</source>
        <translation>Switched off, changed</translation>
    </message>
    <message id="modified">
        <source>Changed</source>
        <translation>Changed</translation>
    </message>
    <message id="statusGroupElectronics">
        <source>Electronics</source>
        <translation>Electronics</translation>
    </message>
    <message id="statusElectronicsFailure">
        <source>Electronics failure</source>
        <translation>Electronics failure</translation>
    </message>
    <message id="statusMemoryFailure">
        <source>Memory failure</source>
        <translation>Memory failure</translation>
    </message>
    <message id="statusParameterChecksumError">
        <source>Parameter checksum error</source>
        <translation>Parameter checksum error</translation>
    </message>
    <message id="statusInternalVoltageLow">
        <source>Internal supply voltage low</source>
        <translation>Internal supply voltage low</translation>
    </message>
    <message id="statusTemperatureHigh">
        <source>Device temperature high</source>
        <translation>Device temperature high</translation>
    </message>
    <message id="statusTemperatureLow">
        <source>Device temperature low</source>
        <translation>Device temperature low</translation>
    </message>
    <message id="statusCoverOpen">
        <source>Cover open</source>
        <translation>Cover open</translation>
    </message>
    <message id="statusWatchdogReset">
        <source>Reset by watchdog</source>
        <translation>Reset by watchdog</translation>
    </message>
    <message id="statusGroupSensors">
        <source>Sensors</source>
        <translation>Sensors</translation>
    </message>
    <message id="statusTravelSensorFailure">
        <source>Travel sensor failure</source>
        <translation>Travel sensor failure</translation>
    </message>
    <message id="statusTravelOutOfRange">
        <source>Travel outside sensor range</source>
        <translation>Travel outside sensor range</translation>
    </message>
    <message id="statusSupplySensorFailure">
        <source>Supply pressure sensor failure</source>
        <translation>Supply pressure sensor failure</translation>
    </message>
    <message id="statusActuatorSensorFailure">
        <source>Actuator pressure sensor failure</source>
        <translation>Actuator pressure sensor failure</translation>
    </message>
    <message id="statusTemperatureSensorFailure">
        <source>Temperature sensor failure</source>
        <translation>Temperature sensor failure</translation>
    </message>
    <message id="statusSensorDrift">
        <source>Sensor drift</source>
        <translation>Sensor drift</translation>
    </message>
    <message id="statusGroupPneumatics">
        <source>Pneumatics</source>
        <translation>Pneumatics</translation>
    </message>
    <message id="statusSupplyPressureLow">
        <source>Supply pressure low</source>
        <translation>Supply pressure low</translation>
    </message>
    <message id="statusSupplyPressureHigh">
        <source>Supply pressure high</source>
        <translation>Supply pressure high</translation>
    </message>
    <message id="statusSupplyPressureUnstable">
        <source>Supply pressure unstable</source>
        <translation>Supply pressure unstable</translation>
    </message>
    <message id="statusDriveSaturated">
        <source>Drive signal at its limit</source>
        <translation>Drive signal at its limit</translation>
    </message>
    <message id="statusPneumaticLeak">
        <source>Pneumatic leak</source>
        <translation>Pneumatic leak</translation>
    </message>
    <message id="statusPilotStageFailure">
        <source>Pilot stage failure</source>
        <translation>Pilot stage failure</translation>
    </message>
    <message id="statusExhaustBlocked">
        <source>Exhaust blocked</source>
        <translation>Exhaust blocked</translation>
    </message>
    <message id="statusGroupValve">
        <source>Valve and actuator</source>
        <translation>Valve and actuator</translation>
    </message>
    <message id="statusTravelDeviation">
        <source>Travel deviation</source>
        <translation>Travel deviation</translation>
    </message>
    <message id="statusValveStuck">
        <source>Valve stuck</source>
        <translation>Valve stuck</translation>
    </message>
    <message id="statusFrictionHigh">
        <source>Friction high</source>
        <translation>Friction high</translation>
    </message>
    <message id="statusFrictionLow">
        <source>Friction low</source>
        <translation>Friction low</translation>
    </message>
    <message id="statusStickSlip">
        <source>Stick-slip motion</source>
        <translation>Stick-slip motion</translation>
    </message>
    <message id="statusTravelHigh">
        <source>Travel high alarm</source>
        <translation>Travel high alarm</translation>
    </message>
    <message id="statusTravelLow">
        <source>Travel low alarm</source>
        <translation>Travel low alarm</translation>
    </message>
    <message id="statusCycleCounterLimit">
        <source>Cycle counter limit exceeded</source>
        <translation>Cycle counter limit exceeded</translation>
    </message>
    <message id="statusTravelSumLimit">
        <source>Total travel limit exceeded</source>
        <translation>Total travel limit exceeded</translation>
    </message>
    <message id="statusSpringFailure">
        <source>Actuator spring failure</source>
        <translation>Actuator spring failure</translation>
    </message>
    <message id="statusSeatWear">
        <source>Seat wear</source>
        <translation>Seat wear</translation>
    </message>
    <message id="statusPackingLeak">
        <source>Packing leak</source>
        <translation>Packing leak</translation>
    </message>
    <message id="statusGroupProcess">
        <source>Process</source>
        <translation>Process</translation>
    </message>
    <message id="statusSignalLow">
        <source>Input signal low</source>
        <translation>Input signal low</translation>
    </message>
    <message id="statusSignalHigh">
        <source>Input signal high</source>
        <translation>Input signal high</translation>
    </message>
    <message id="statusSetpointOscillating">
        <source>Set point oscillates</source>
        <translation>Set point oscillates</translation>
    </message>
    <message id="statusCavitation">
        <source>Cavitation</source>
        <translation>Cavitation</translation>
    </message>
    <message id="statusSafetyShutdown">
        <source>Safety shutdown active</source>
        <translation>Safety shutdown active</translation>
    </message>
    <message id="statusStrokeTestFailed">
        <source>Stroke test failed</source>
        <translation>Stroke test failed</translation>
    </message>
    <message id="statusStrokeTestOverdue">
        <source>Stroke test overdue</source>
        <translation>Stroke test overdue</translation>
    </message>
    <message id="statusGroupOperation">
        <source>Configuration and operation</source>
        <translation>Configuration and operation</translation>
    </message>
    <message id="statusSimulationActive">
        <source>Simulation active</source>
        <translation>Simulation active</translation>
    </message>
    <message id="statusLocalOperation">
        <source>Local operation</source>
        <translation>Local operation</translation>
    </message>
    <message id="statusLoopCurrentFixed">
        <source>Loop current fixed</source>
        <translation>Loop current fixed</translation>
    </message>
    <message id="statusBusTimeout">
        <source>Bus communication interrupted</source>
        <translation>Bus communication interrupted</translation>
    </message>
    <message id="statusNotCalibrated">
        <source>Travel not calibrated</source>
        <translation>Travel not calibrated</translation>
    </message>
    <message id="statusCalibrationRunning">
        <source>Calibration running</source>
        <translation>Calibration running</translation>
    </message>
    <message id="statusWriteProtected">
        <source>Write protection on</source>
        <translation>Write protection on</translation>
    </message>
    <message id="statusMaintenanceDue">
        <source>Maintenance due</source>
        <translation>Maintenance due</translation>
    </message>
    <message id="statusColdStart">
        <source>Restarted since last read</source>
        <translation>Restarted since last read</translation>
    </message>
    <message id="statusHARTConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Configuration changed</translation>
    </message>
    <message id="statusConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Configuration changed</translation>
    </message>
    <message id="faultSupplyFailure">
        <source>Supply air fails</source>
        <translation>Supply air fails</translation>
    </message>
    <message id="faultSupplyTooHigh">
        <source>Supply pressure regulator fails</source>
        <translation>Supply pressure regulator fails</translation>
    </message>
    <message id="faultFriction">
        <source>Raised friction</source>
        <translation>Raised friction</translation>
    </message>
    <message id="faultWornPacking">
        <source>Worn packing</source>
        <translation>Worn packing</translation>
    </message>
    <message id="faultStuck">
        <source>Valve stuck</source>
        <translation>Valve stuck</translation>
    </message>
    <message id="faultLeak">
        <source>Leaking actuator</source>
        <translation>Leaking actuator</translation>
    </message>
    <message id="faultTravelSensor">
        <source>Travel sensor fails</source>
        <translation>Travel sensor fails</translation>
    </message>
    <message id="faultSupplySensor">
        <source>Supply pressure sensor fails</source>
        <translation>Supply pressure sensor fails</translation>
    </message>
    <message id="faultActuatorSensor">
        <source>Actuator pressure sensor fails</source>
        <translation>Actuator pressure sensor fails</translation>
    </message>
    <message id="faultTemperatureSensor">
        <source>Temperature sensor fails</source>
        <translation>Temperature sensor fails</translation>
    </message>
    <message id="faultOverheating">
        <source>Overheating</source>
        <translation>Overheating</translation>
    </message>
    <message id="faultFrost">
        <source>Frost</source>
        <translation>Frost</translation>
    </message>
    <message id="faultCoverOpen">
        <source>Cover lifted</source>
        <translation>Cover lifted</translation>
    </message>
    <message id="faultSignalLost">
        <source>Input signal lost</source>
        <translation>Input signal lost</translation>
    </message>
    <message id="faultSignalOscillating">
        <source>Oscillating input signal</source>
        <translation>Oscillating input signal</translation>
    </message>
    <message id="faultSimulation">
        <source>Simulation of measured values</source>
        <translation>Simulation of measured values</translation>
    </message>
    <message id="statusMasks">
        <source>Status configuration</source>
        <translation>Status configuration</translation>
    </message>
    <message id="cycleCounterLimit">
        <source>Cycle counter limit</source>
        <translation>Cycle counter limit</translation>
    </message>
    <message id="travelSum">
        <source>Total travel</source>
        <translation>Total travel</translation>
    </message>
    <message id="travelSumLimit">
        <source>Total travel limit</source>
        <translation>Total travel limit</translation>
    </message>
    <message id="travelDeviationLimit">
        <source>Travel deviation limit</source>
        <translation>Travel deviation limit</translation>
    </message>
    <message id="frictionHighLimit">
        <source>High friction limit</source>
        <translation>High friction limit</translation>
    </message>
    <message id="frictionLowLimit">
        <source>Low friction limit</source>
        <translation>Low friction limit</translation>
    </message>
    <message id="inputCurrent">
        <source>Input current</source>
        <translation>Input current</translation>
    </message>
    <message id="travelSetpoint">
        <source>Travel set point</source>
        <translation>Travel set point</translation>
    </message>
    <message id="travelDeviation">
        <source>Travel deviation</source>
        <translation>Travel deviation</translation>
    </message>
    <message id="driveSignal">
        <source>Drive signal</source>
        <translation>Drive signal</translation>
    </message>
    <message id="valveFriction">
        <source>Valve friction</source>
        <translation>Valve friction</translation>
    </message>
    <message id="statusMask1">
        <source>Status mask, part 1</source>
        <translation>Status mask, part 1</translation>
    </message>
    <message id="statusMaskInfo1">
        <source>Information mask, part 1</source>
        <translation>Information mask, part 1</translation>
    </message>
    <message id="statusMaskWarning1">
        <source>Warning mask, part 1</source>
        <translation>Warning mask, part 1</translation>
    </message>
    <message id="statusMaskAlarm1">
        <source>Alarm mask, part 1</source>
        <translation>Alarm mask, part 1</translation>
    </message>
    <message id="statusMaskOnOff1">
        <source>On/off mask, part 1</source>
        <translation>On/off mask, part 1</translation>
    </message>
    <message id="statusMask2">
        <source>Status mask, part 2</source>
        <translation>Status mask, part 2</translation>
    </message>
    <message id="statusMaskInfo2">
        <source>Information mask, part 2</source>
        <translation>Information mask, part 2</translation>
    </message>
    <message id="statusMaskWarning2">
        <source>Warning mask, part 2</source>
        <translation>Warning mask, part 2</translation>
    </message>
    <message id="statusMaskAlarm2">
        <source>Alarm mask, part 2</source>
        <translation>Alarm mask, part 2</translation>
    </message>
    <message id="statusMaskOnOff2">
        <source>On/off mask, part 2</source>
        <translation>On/off mask, part 2</translation>
    </message>
    <message id="statusMask3">
        <source>Status mask, part 3</source>
        <translation>Status mask, part 3</translation>
    </message>
    <message id="statusMaskInfo3">
        <source>Information mask, part 3</source>
        <translation>Information mask, part 3</translation>
    </message>
    <message id="statusMaskWarning3">
        <source>Warning mask, part 3</source>
        <translation>Warning mask, part 3</translation>
    </message>
    <message id="statusMaskAlarm3">
        <source>Alarm mask, part 3</source>
        <translation>Alarm mask, part 3</translation>
    </message>
    <message id="statusMaskOnOff3">
        <source>On/off mask, part 3</source>
        <translation>On/off mask, part 3</translation>
    </message>
    <message id="shell_simulation">
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message id="shell_simulationFaults">
        <source>Faults</source>
        <translation>Faults</translation>
    </message>
    <message id="shell_simulationMend">
        <source>Put everything right</source>
        <translation>Put everything right</translation>
    </message>
    <message id="shell_simulationFriction">
        <source>Friction</source>
        <translation>Friction</translation>
    </message>
    <message id="shell_simulationSignal">
        <source>Fixed input current</source>
        <translation>Fixed input current</translation>
    </message>
    <message id="eventLog">
        <source>Event log</source>
        <translation>Event log</translation>
    </message>
    <message id="moreEvents">
        <source>More events</source>
        <translation>More events</translation>
    </message>
    <message id="totalOperationTime">
        <source>Total operation time</source>
        <translation>Total operation time</translation>
    </message>
    <message id="eventLogTotalOperationTime">
        <source>Total operation time</source>
        <translation>Total operation time</translation>
    </message>
    <message id="dateEstimate">
        <source>*) Assuming 0s downtime</source>
        <translation>*) Assuming 0s downtime</translation>
    </message>
    <message id="class">
        <source>Class</source>
        <translation>Class</translation>
    </message>
    <message id="event">
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message id="eventLogTimeHeader">
        <source>Operation time (h)</source>
        <translation>Operation time (h)</translation>
    </message>
    <message id="date">
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message id="channelIndex">
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message id="row">
        <source>Row</source>
        <translation>Row</translation>
    </message>
    <message id="eventObsolete">
        <source>Obsolete</source>
        <translation>Obsolete</translation>
    </message>
    <message id="eventLogOperationTime">
        <source>Operation time</source>
        <translation>Operation time</translation>
    </message>
    <message id="counters">
        <source>Counters</source>
        <translation>Counters</translation>
    </message>
    <message id="vx4400eventClassNone">
        <source>None</source>
        <translation>None</translation>
    </message>
    <message id="vx4400eventClassError">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="vx4400eventClassAlarm">
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message id="vx4400eventClassWarning">
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message id="vx4400eventClassNotification">
        <source>Notification</source>
        <translation>Notification</translation>
    </message>
    <message id="vx4400eventNone">
        <source>No more events</source>
        <translation>No more events</translation>
    </message>
    <message id="vx4400eventExternalReset">
        <source>External reset</source>
        <translation>External reset</translation>
    </message>
    <message id="vx4400eventConfigurationChanged">
        <source>Configuration changed</source>
        <translation>Configuration changed</translation>
    </message>
    <message id="vx4400eventAddressChanged">
        <source>Polling address changed</source>
        <translation>Polling address changed</translation>
    </message>
    <message id="vx4400eventStatusReset">
        <source>Device status reset</source>
        <translation>Device status reset</translation>
    </message>
    <message id="vx4400eventCountersReset">
        <source>Counters reset</source>
        <translation>Counters reset</translation>
    </message>
    <message id="vx4400eventExtremesReset">
        <source>Temperature extremes reset</source>
        <translation>Temperature extremes reset</translation>
    </message>
    <message id="vx4400eventLogReset">
        <source>Event log cleared</source>
        <translation>Event log cleared</translation>
    </message>
    <message id="vx4400eventTuningReset">
        <source>Tuning back to defaults</source>
        <translation>Tuning back to defaults</translation>
    </message>
    <message id="vx4400eventAlarmsReset">
        <source>Alarm settings back to defaults</source>
        <translation>Alarm settings back to defaults</translation>
    </message>
    <message id="vx4400eventFactorySettings">
        <source>Factory settings restored</source>
        <translation>Factory settings restored</translation>
    </message>
    <message id="vx4400eventCurrentCalibrated">
        <source>Loop current calibrated</source>
        <translation>Loop current calibrated</translation>
    </message>
    <message id="reset">
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message id="resetView">
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message id="resetStatus">
        <source>Device status</source>
        <translation>Device status</translation>
    </message>
    <message id="resetDiagnosticsCode">
        <source>Diagnostics</source>
        <translation>Diagnostics</translation>
    </message>
    <message id="resetParametersCode">
        <source>Parameters</source>
        <translation>Parameters</translation>
    </message>
    <message id="resetDiagnostics">
        <source>Reset diagnostics</source>
        <translation>Reset diagnostics</translation>
    </message>
    <message id="resetDiagnosticsQuestion">
        <source>The diagnostic data chosen will be lost. Reset it?</source>
        <translation>The diagnostic data chosen will be lost. Reset it?</translation>
    </message>
    <message id="resetParameters">
        <source>Reset parameters</source>
        <translation>Reset parameters</translation>
    </message>
    <message id="resetParametersQuestion">
        <source>This changes the device's settings or restarts it. The valve may move. Continue?</source>
        <translation>This changes the device's settings or restarts it. The valve may move. Continue?</translation>
    </message>
    <message id="resetting">
        <source>Resetting</source>
        <translation>Resetting</translation>
    </message>
    <message id="resetNothing">
        <source>Nothing</source>
        <translation>Nothing</translation>
    </message>
    <message id="resetStatusAll">
        <source>Latched conditions</source>
        <translation>Latched conditions</translation>
    </message>
    <message id="resetCounters">
        <source>Counters</source>
        <translation>Counters</translation>
    </message>
    <message id="resetExtremes">
        <source>Temperature extremes</source>
        <translation>Temperature extremes</translation>
    </message>
    <message id="resetEventLog">
        <source>Event log</source>
        <translation>Event log</translation>
    </message>
    <message id="resetDiagnosticsAll">
        <source>All diagnostic data</source>
        <translation>All diagnostic data</translation>
    </message>
    <message id="resetTuning">
        <source>Tuning to defaults</source>
        <translation>Tuning to defaults</translation>
    </message>
    <message id="resetAlarms">
        <source>Alarm settings to defaults</source>
        <translation>Alarm settings to defaults</translation>
    </message>
    <message id="resetFactory">
        <source>All settings to factory defaults</source>
        <translation>All settings to factory defaults</translation>
    </message>
    <message id="resetRestart">
        <source>Restart the device</source>
        <translation>Restart the device</translation>
    </message>
    <message id="hartAddress">
        <source>HART address</source>
        <translation>HART address</translation>
    </message>
    <message id="address">
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message id="multidrop">
        <source>Multidrop</source>
        <translation>Multidrop</translation>
    </message>
    <message id="disabled">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="enabled">
        <source>On</source>
        <translation>On</translation>
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
        <translation>mA calibration</translation>
    </message>
    <message id="mACalibration">
        <source>mA calibration</source>
        <translation>mA calibration</translation>
    </message>
    <message id="zeroPointTrim">
        <source>1. Drive the low test current</source>
        <translation>1. Drive the low test current</translation>
    </message>
    <message id="measuredCurrentZeroTrim">
        <source>2. Type the measured low current</source>
        <translation>2. Type the measured low current</translation>
    </message>
    <message id="finalValueTrim">
        <source>3. Drive the high test current</source>
        <translation>3. Drive the high test current</translation>
    </message>
    <message id="measuredCurrentFullTrim">
        <source>4. Type the measured high current</source>
        <translation>4. Type the measured high current</translation>
    </message>
    <message id="fixedOutputCurrentTurnOff">
        <source>5. Turn the fixed current off</source>
        <translation>5. Turn the fixed current off</translation>
    </message>
    <message id="backWithArrow">
        <source>&lt;   Back</source>
        <translation>&lt;   Back</translation>
    </message>
    <message id="nextWithArrow">
        <source>Next   &gt;</source>
        <translation>Next   &gt;</translation>
    </message>
    <message id="recalibrate">
        <source>Calibrate again</source>
        <translation>Calibrate again</translation>
    </message>
    <message id="calibrationExitWarning">
        <source>The device still drives a fixed output current. Turn it off and leave the calibration?</source>
        <translation>The device still drives a fixed output current. Turn it off and leave the calibration?</translation>
    </message>
    <message id="loopTestValue">
        <source>Test current</source>
        <translation>Test current</translation>
    </message>
    <message id="loopTestValueStep0">
        <source>Test current</source>
        <translation>Test current</translation>
    </message>
    <message id="loopTestValueStep2">
        <source>Test current</source>
        <translation>Test current</translation>
    </message>
    <message id="loopTestValueStep4">
        <source>Test current</source>
        <translation>Test current</translation>
    </message>
    <message id="loopCurrentZero">
        <source>Measured low current</source>
        <translation>Measured low current</translation>
    </message>
    <message id="loopCurrentGain">
        <source>Measured high current</source>
        <translation>Measured high current</translation>
    </message>
    <message id="moduleSelection">
        <source>Module selection</source>
        <translation>Module selection</translation>
    </message>
    <message id="hartCmdErrIncorrectLoopCurrentMode">
        <source>The device does not drive a current for this step. Drive the test current first; in multidrop mode the current is fixed.</source>
        <translation>The device does not drive a current for this step. Drive the test current first; in multidrop mode the current is fixed.</translation>
    </message>
    <message id="hartCmdErrPassedParameterTooLarge">
        <source>The value is too large.</source>
        <translation>The value is too large.</translation>
    </message>
    <message id="hartCmdErrPassedParameterTooSmall">
        <source>The value is too small.</source>
        <translation>The value is too small.</translation>
    </message>
    <message id="eventLogEvent00">
        <source>Event 0</source>
        <translation>Event 0</translation>
    </message>
    <message id="eventLogClass00">
        <source>Event class 0</source>
        <translation>Event class 0</translation>
    </message>
    <message id="eventLogTime00">
        <source>Event time 0</source>
        <translation>Event time 0</translation>
    </message>
    <message id="eventLogEvent01">
        <source>Event 1</source>
        <translation>Event 1</translation>
    </message>
    <message id="eventLogClass01">
        <source>Event class 1</source>
        <translation>Event class 1</translation>
    </message>
    <message id="eventLogTime01">
        <source>Event time 1</source>
        <translation>Event time 1</translation>
    </message>
    <message id="eventLogEvent02">
        <source>Event 2</source>
        <translation>Event 2</translation>
    </message>
    <message id="eventLogClass02">
        <source>Event class 2</source>
        <translation>Event class 2</translation>
    </message>
    <message id="eventLogTime02">
        <source>Event time 2</source>
        <translation>Event time 2</translation>
    </message>
    <message id="eventLogEvent03">
        <source>Event 3</source>
        <translation>Event 3</translation>
    </message>
    <message id="eventLogClass03">
        <source>Event class 3</source>
        <translation>Event class 3</translation>
    </message>
    <message id="eventLogTime03">
        <source>Event time 3</source>
        <translation>Event time 3</translation>
    </message>
    <message id="eventLogEvent04">
        <source>Event 4</source>
        <translation>Event 4</translation>
    </message>
    <message id="eventLogClass04">
        <source>Event class 4</source>
        <translation>Event class 4</translation>
    </message>
    <message id="eventLogTime04">
        <source>Event time 4</source>
        <translation>Event time 4</translation>
    </message>
    <message id="eventLogEvent05">
        <source>Event 5</source>
        <translation>Event 5</translation>
    </message>
    <message id="eventLogClass05">
        <source>Event class 5</source>
        <translation>Event class 5</translation>
    </message>
    <message id="eventLogTime05">
        <source>Event time 5</source>
        <translation>Event time 5</translation>
    </message>
    <message id="eventLogEvent06">
        <source>Event 6</source>
        <translation>Event 6</translation>
    </message>
    <message id="eventLogClass06">
        <source>Event class 6</source>
        <translation>Event class 6</translation>
    </message>
    <message id="eventLogTime06">
        <source>Event time 6</source>
        <translation>Event time 6</translation>
    </message>
    <message id="eventLogEvent07">
        <source>Event 7</source>
        <translation>Event 7</translation>
    </message>
    <message id="eventLogClass07">
        <source>Event class 7</source>
        <translation>Event class 7</translation>
    </message>
    <message id="eventLogTime07">
        <source>Event time 7</source>
        <translation>Event time 7</translation>
    </message>
    <message id="eventLogEvent08">
        <source>Event 8</source>
        <translation>Event 8</translation>
    </message>
    <message id="eventLogClass08">
        <source>Event class 8</source>
        <translation>Event class 8</translation>
    </message>
    <message id="eventLogTime08">
        <source>Event time 8</source>
        <translation>Event time 8</translation>
    </message>
    <message id="eventLogEvent09">
        <source>Event 9</source>
        <translation>Event 9</translation>
    </message>
    <message id="eventLogClass09">
        <source>Event class 9</source>
        <translation>Event class 9</translation>
    </message>
    <message id="eventLogTime09">
        <source>Event time 9</source>
        <translation>Event time 9</translation>
    </message>
    <message id="eventLogEvent10">
        <source>Event 10</source>
        <translation>Event 10</translation>
    </message>
    <message id="eventLogClass10">
        <source>Event class 10</source>
        <translation>Event class 10</translation>
    </message>
    <message id="eventLogTime10">
        <source>Event time 10</source>
        <translation>Event time 10</translation>
    </message>
    <message id="eventLogEvent11">
        <source>Event 11</source>
        <translation>Event 11</translation>
    </message>
    <message id="eventLogClass11">
        <source>Event class 11</source>
        <translation>Event class 11</translation>
    </message>
    <message id="eventLogTime11">
        <source>Event time 11</source>
        <translation>Event time 11</translation>
    </message>
    <message id="eventLogEvent12">
        <source>Event 12</source>
        <translation>Event 12</translation>
    </message>
    <message id="eventLogClass12">
        <source>Event class 12</source>
        <translation>Event class 12</translation>
    </message>
    <message id="eventLogTime12">
        <source>Event time 12</source>
        <translation>Event time 12</translation>
    </message>
    <message id="eventLogEvent13">
        <source>Event 13</source>
        <translation>Event 13</translation>
    </message>
    <message id="eventLogClass13">
        <source>Event class 13</source>
        <translation>Event class 13</translation>
    </message>
    <message id="eventLogTime13">
        <source>Event time 13</source>
        <translation>Event time 13</translation>
    </message>
    <message id="eventLogEvent14">
        <source>Event 14</source>
        <translation>Event 14</translation>
    </message>
    <message id="eventLogClass14">
        <source>Event class 14</source>
        <translation>Event class 14</translation>
    </message>
    <message id="eventLogTime14">
        <source>Event time 14</source>
        <translation>Event time 14</translation>
    </message>
    <message id="eventLogEvent15">
        <source>Event 15</source>
        <translation>Event 15</translation>
    </message>
    <message id="eventLogClass15">
        <source>Event class 15</source>
        <translation>Event class 15</translation>
    </message>
    <message id="eventLogTime15">
        <source>Event time 15</source>
        <translation>Event time 15</translation>
    </message>
    <message id="eventLogEvent16">
        <source>Event 16</source>
        <translation>Event 16</translation>
    </message>
    <message id="eventLogClass16">
        <source>Event class 16</source>
        <translation>Event class 16</translation>
    </message>
    <message id="eventLogTime16">
        <source>Event time 16</source>
        <translation>Event time 16</translation>
    </message>
    <message id="eventLogEvent17">
        <source>Event 17</source>
        <translation>Event 17</translation>
    </message>
    <message id="eventLogClass17">
        <source>Event class 17</source>
        <translation>Event class 17</translation>
    </message>
    <message id="eventLogTime17">
        <source>Event time 17</source>
        <translation>Event time 17</translation>
    </message>
    <message id="eventLogEvent18">
        <source>Event 18</source>
        <translation>Event 18</translation>
    </message>
    <message id="eventLogClass18">
        <source>Event class 18</source>
        <translation>Event class 18</translation>
    </message>
    <message id="eventLogTime18">
        <source>Event time 18</source>
        <translation>Event time 18</translation>
    </message>
    <message id="eventLogEvent19">
        <source>Event 19</source>
        <translation>Event 19</translation>
    </message>
    <message id="eventLogClass19">
        <source>Event class 19</source>
        <translation>Event class 19</translation>
    </message>
    <message id="eventLogTime19">
        <source>Event time 19</source>
        <translation>Event time 19</translation>
    </message>
    <message id="eventLogEvent20">
        <source>Event 20</source>
        <translation>Event 20</translation>
    </message>
    <message id="eventLogClass20">
        <source>Event class 20</source>
        <translation>Event class 20</translation>
    </message>
    <message id="eventLogTime20">
        <source>Event time 20</source>
        <translation>Event time 20</translation>
    </message>
    <message id="eventLogEvent21">
        <source>Event 21</source>
        <translation>Event 21</translation>
    </message>
    <message id="eventLogClass21">
        <source>Event class 21</source>
        <translation>Event class 21</translation>
    </message>
    <message id="eventLogTime21">
        <source>Event time 21</source>
        <translation>Event time 21</translation>
    </message>
    <message id="eventLogEvent22">
        <source>Event 22</source>
        <translation>Event 22</translation>
    </message>
    <message id="eventLogClass22">
        <source>Event class 22</source>
        <translation>Event class 22</translation>
    </message>
    <message id="eventLogTime22">
        <source>Event time 22</source>
        <translation>Event time 22</translation>
    </message>
    <message id="eventLogEvent23">
        <source>Event 23</source>
        <translation>Event 23</translation>
    </message>
    <message id="eventLogClass23">
        <source>Event class 23</source>
        <translation>Event class 23</translation>
    </message>
    <message id="eventLogTime23">
        <source>Event time 23</source>
        <translation>Event time 23</translation>
    </message>
    <message id="eventLogEvent24">
        <source>Event 24</source>
        <translation>Event 24</translation>
    </message>
    <message id="eventLogClass24">
        <source>Event class 24</source>
        <translation>Event class 24</translation>
    </message>
    <message id="eventLogTime24">
        <source>Event time 24</source>
        <translation>Event time 24</translation>
    </message>
    <message id="eventLogEvent25">
        <source>Event 25</source>
        <translation>Event 25</translation>
    </message>
    <message id="eventLogClass25">
        <source>Event class 25</source>
        <translation>Event class 25</translation>
    </message>
    <message id="eventLogTime25">
        <source>Event time 25</source>
        <translation>Event time 25</translation>
    </message>
    <message id="eventLogEvent26">
        <source>Event 26</source>
        <translation>Event 26</translation>
    </message>
    <message id="eventLogClass26">
        <source>Event class 26</source>
        <translation>Event class 26</translation>
    </message>
    <message id="eventLogTime26">
        <source>Event time 26</source>
        <translation>Event time 26</translation>
    </message>
    <message id="eventLogEvent27">
        <source>Event 27</source>
        <translation>Event 27</translation>
    </message>
    <message id="eventLogClass27">
        <source>Event class 27</source>
        <translation>Event class 27</translation>
    </message>
    <message id="eventLogTime27">
        <source>Event time 27</source>
        <translation>Event time 27</translation>
    </message>
    <message id="eventLogEvent28">
        <source>Event 28</source>
        <translation>Event 28</translation>
    </message>
    <message id="eventLogClass28">
        <source>Event class 28</source>
        <translation>Event class 28</translation>
    </message>
    <message id="eventLogTime28">
        <source>Event time 28</source>
        <translation>Event time 28</translation>
    </message>
    <message id="eventLogEvent29">
        <source>Event 29</source>
        <translation>Event 29</translation>
    </message>
    <message id="eventLogClass29">
        <source>Event class 29</source>
        <translation>Event class 29</translation>
    </message>
    <message id="eventLogTime29">
        <source>Event time 29</source>
        <translation>Event time 29</translation>
    </message>
    <message id="shell_settingsUnreadable">
        <source>The settings in %1 cannot be read. The program starts with its usual settings.</source>
        <translation>The settings in %1 cannot be read. The program starts with its usual settings.</translation>
    </message>
    <message id="vx4400eventElectronicsFailure">
        <source>Electronics failure</source>
        <translation>Electronics failure</translation>
    </message>
    <message id="vx4400eventElectronicsFailureOff">
        <source>Electronics failure: ended</source>
        <translation>Electronics failure: ended</translation>
    </message>
    <message id="vx4400eventMemoryFailure">
        <source>Memory failure</source>
        <translation>Memory failure</translation>
    </message>
    <message id="vx4400eventMemoryFailureOff">
        <source>Memory failure: ended</source>
        <translation>Memory failure: ended</translation>
    </message>
    <message id="vx4400eventParameterChecksumError">
        <source>Parameter checksum error</source>
        <translation>Parameter checksum error</translation>
    </message>
    <message id="vx4400eventParameterChecksumErrorOff">
        <source>Parameter checksum error: ended</source>
        <translation>Parameter checksum error: ended</translation>
    </message>
    <message id="vx4400eventInternalVoltageLow">
        <source>Internal supply voltage low</source>
        <translation>Internal supply voltage low</translation>
    </message>
    <message id="vx4400eventInternalVoltageLowOff">
        <source>Internal supply voltage low: ended</source>
        <translation>Internal supply voltage low: ended</translation>
    </message>
    <message id="vx4400eventTemperatureHigh">
        <source>Device temperature high</source>
        <translation>Device temperature high</translation>
    </message>
    <message id="vx4400eventTemperatureHighOff">
        <source>Device temperature high: ended</source>
        <translation>Device temperature high: ended</translation>
    </message>
    <message id="vx4400eventTemperatureLow">
        <source>Device temperature low</source>
        <translation>Device temperature low</translation>
    </message>
    <message id="vx4400eventTemperatureLowOff">
        <source>Device temperature low: ended</source>
        <translation>Device temperature low: ended</translation>
    </message>
    <message id="vx4400eventCoverOpen">
        <source>Cover open</source>
        <translation>Cover open</translation>
    </message>
    <message id="vx4400eventCoverOpenOff">
        <source>Cover open: ended</source>
        <translation>Cover open: ended</translation>
    </message>
    <message id="vx4400eventWatchdogReset">
        <source>Reset by watchdog</source>
        <translation>Reset by watchdog</translation>
    </message>
    <message id="vx4400eventWatchdogResetOff">
        <source>Reset by watchdog: ended</source>
        <translation>Reset by watchdog: ended</translation>
    </message>
    <message id="vx4400eventTravelSensorFailure">
        <source>Travel sensor failure</source>
        <translation>Travel sensor failure</translation>
    </message>
    <message id="vx4400eventTravelSensorFailureOff">
        <source>Travel sensor failure: ended</source>
        <translation>Travel sensor failure: ended</translation>
    </message>
    <message id="vx4400eventTravelOutOfRange">
        <source>Travel outside sensor range</source>
        <translation>Travel outside sensor range</translation>
    </message>
    <message id="vx4400eventTravelOutOfRangeOff">
        <source>Travel outside sensor range: ended</source>
        <translation>Travel outside sensor range: ended</translation>
    </message>
    <message id="vx4400eventSupplySensorFailure">
        <source>Supply pressure sensor failure</source>
        <translation>Supply pressure sensor failure</translation>
    </message>
    <message id="vx4400eventSupplySensorFailureOff">
        <source>Supply pressure sensor failure: ended</source>
        <translation>Supply pressure sensor failure: ended</translation>
    </message>
    <message id="vx4400eventActuatorSensorFailure">
        <source>Actuator pressure sensor failure</source>
        <translation>Actuator pressure sensor failure</translation>
    </message>
    <message id="vx4400eventActuatorSensorFailureOff">
        <source>Actuator pressure sensor failure: ended</source>
        <translation>Actuator pressure sensor failure: ended</translation>
    </message>
    <message id="vx4400eventTemperatureSensorFailure">
        <source>Temperature sensor failure</source>
        <translation>Temperature sensor failure</translation>
    </message>
    <message id="vx4400eventTemperatureSensorFailureOff">
        <source>Temperature sensor failure: ended</source>
        <translation>Temperature sensor failure: ended</translation>
    </message>
    <message id="vx4400eventSensorDrift">
        <source>Sensor drift</source>
        <translation>Sensor drift</translation>
    </message>
    <message id="vx4400eventSensorDriftOff">
        <source>Sensor drift: ended</source>
        <translation>Sensor drift: ended</translation>
    </message>
    <message id="vx4400eventSupplyPressureLow">
        <source>Supply pressure low</source>
        <translation>Supply pressure low</translation>
    </message>
    <message id="vx4400eventSupplyPressureLowOff">
        <source>Supply pressure low: ended</source>
        <translation>Supply pressure low: ended</translation>
    </message>
    <message id="vx4400eventSupplyPressureHigh">
        <source>Supply pressure high</source>
        <translation>Supply pressure high</translation>
    </message>
    <message id="vx4400eventSupplyPressureHighOff">
        <source>Supply pressure high: ended</source>
        <translation>Supply pressure high: ended</translation>
    </message>
    <message id="vx4400eventSupplyPressureUnstable">
        <source>Supply pressure unstable</source>
        <translation>Supply pressure unstable</translation>
    </message>
    <message id="vx4400eventSupplyPressureUnstableOff">
        <source>Supply pressure unstable: ended</source>
        <translation>Supply pressure unstable: ended</translation>
    </message>
    <message id="vx4400eventDriveSaturated">
        <source>Drive signal at its limit</source>
        <translation>Drive signal at its limit</translation>
    </message>
    <message id="vx4400eventDriveSaturatedOff">
        <source>Drive signal at its limit: ended</source>
        <translation>Drive signal at its limit: ended</translation>
    </message>
    <message id="vx4400eventPneumaticLeak">
        <source>Pneumatic leak</source>
        <translation>Pneumatic leak</translation>
    </message>
    <message id="vx4400eventPneumaticLeakOff">
        <source>Pneumatic leak: ended</source>
        <translation>Pneumatic leak: ended</translation>
    </message>
    <message id="vx4400eventPilotStageFailure">
        <source>Pilot stage failure</source>
        <translation>Pilot stage failure</translation>
    </message>
    <message id="vx4400eventPilotStageFailureOff">
        <source>Pilot stage failure: ended</source>
        <translation>Pilot stage failure: ended</translation>
    </message>
    <message id="vx4400eventExhaustBlocked">
        <source>Exhaust blocked</source>
        <translation>Exhaust blocked</translation>
    </message>
    <message id="vx4400eventExhaustBlockedOff">
        <source>Exhaust blocked: ended</source>
        <translation>Exhaust blocked: ended</translation>
    </message>
    <message id="vx4400eventTravelDeviation">
        <source>Travel deviation</source>
        <translation>Travel deviation</translation>
    </message>
    <message id="vx4400eventTravelDeviationOff">
        <source>Travel deviation: ended</source>
        <translation>Travel deviation: ended</translation>
    </message>
    <message id="vx4400eventValveStuck">
        <source>Valve stuck</source>
        <translation>Valve stuck</translation>
    </message>
    <message id="vx4400eventValveStuckOff">
        <source>Valve stuck: ended</source>
        <translation>Valve stuck: ended</translation>
    </message>
    <message id="vx4400eventFrictionHigh">
        <source>Friction high</source>
        <translation>Friction high</translation>
    </message>
    <message id="vx4400eventFrictionHighOff">
        <source>Friction high: ended</source>
        <translation>Friction high: ended</translation>
    </message>
    <message id="vx4400eventFrictionLow">
        <source>Friction low</source>
        <translation>Friction low</translation>
    </message>
    <message id="vx4400eventFrictionLowOff">
        <source>Friction low: ended</source>
        <translation>Friction low: ended</translation>
    </message>
    <message id="vx4400eventStickSlip">
        <source>Stick-slip motion</source>
        <translation>Stick-slip motion</translation>
    </message>
    <message id="vx4400eventStickSlipOff">
        <source>Stick-slip motion: ended</source>
        <translation>Stick-slip motion: ended</translation>
    </message>
    <message id="vx4400eventTravelHigh">
        <source>Travel high alarm</source>
        <translation>Travel high alarm</translation>
    </message>
    <message id="vx4400eventTravelHighOff">
        <source>Travel high alarm: ended</source>
        <translation>Travel high alarm: ended</translation>
    </message>
    <message id="vx4400eventTravelLow">
        <source>Travel low alarm</source>
        <translation>Travel low alarm</translation>
    </message>
    <message id="vx4400eventTravelLowOff">
        <source>Travel low alarm: ended</source>
        <translation>Travel low alarm: ended</translation>
    </message>
    <message id="vx4400eventCycleCounterLimit">
        <source>Cycle counter limit exceeded</source>
        <translation>Cycle counter limit exceeded</translation>
    </message>
    <message id="vx4400eventCycleCounterLimitOff">
        <source>Cycle counter limit exceeded: ended</source>
        <translation>Cycle counter limit exceeded: ended</translation>
    </message>
    <message id="vx4400eventTravelSumLimit">
        <source>Total travel limit exceeded</source>
        <translation>Total travel limit exceeded</translation>
    </message>
    <message id="vx4400eventTravelSumLimitOff">
        <source>Total travel limit exceeded: ended</source>
        <translation>Total travel limit exceeded: ended</translation>
    </message>
    <message id="vx4400eventSpringFailure">
        <source>Actuator spring failure</source>
        <translation>Actuator spring failure</translation>
    </message>
    <message id="vx4400eventSpringFailureOff">
        <source>Actuator spring failure: ended</source>
        <translation>Actuator spring failure: ended</translation>
    </message>
    <message id="vx4400eventSeatWear">
        <source>Seat wear</source>
        <translation>Seat wear</translation>
    </message>
    <message id="vx4400eventSeatWearOff">
        <source>Seat wear: ended</source>
        <translation>Seat wear: ended</translation>
    </message>
    <message id="vx4400eventPackingLeak">
        <source>Packing leak</source>
        <translation>Packing leak</translation>
    </message>
    <message id="vx4400eventPackingLeakOff">
        <source>Packing leak: ended</source>
        <translation>Packing leak: ended</translation>
    </message>
    <message id="vx4400eventSignalLow">
        <source>Input signal low</source>
        <translation>Input signal low</translation>
    </message>
    <message id="vx4400eventSignalLowOff">
        <source>Input signal low: ended</source>
        <translation>Input signal low: ended</translation>
    </message>
    <message id="vx4400eventSignalHigh">
        <source>Input signal high</source>
        <translation>Input signal high</translation>
    </message>
    <message id="vx4400eventSignalHighOff">
        <source>Input signal high: ended</source>
        <translation>Input signal high: ended</translation>
    </message>
    <message id="vx4400eventSetpointOscillating">
        <source>Set point oscillates</source>
        <translation>Set point oscillates</translation>
    </message>
    <message id="vx4400eventSetpointOscillatingOff">
        <source>Set point oscillates: ended</source>
        <translation>Set point oscillates: ended</translation>
    </message>
    <message id="vx4400eventCavitation">
        <source>Cavitation</source>
        <translation>Cavitation</translation>
    </message>
    <message id="vx4400eventCavitationOff">
        <source>Cavitation: ended</source>
        <translation>Cavitation: ended</translation>
    </message>
    <message id="vx4400eventSafetyShutdown">
        <source>Safety shutdown active</source>
        <translation>Safety shutdown active</translation>
    </message>
    <message id="vx4400eventSafetyShutdownOff">
        <source>Safety shutdown active: ended</source>
        <translation>Safety shutdown active: ended</translation>
    </message>
    <message id="vx4400eventStrokeTestFailed">
        <source>Stroke test failed</source>
        <translation>Stroke test failed</translation>
    </message>
    <message id="vx4400eventStrokeTestFailedOff">
        <source>Stroke test failed: ended</source>
        <translation>Stroke test failed: ended</translation>
    </message>
    <message id="vx4400eventStrokeTestOverdue">
        <source>Stroke test overdue</source>
        <translation>Stroke test overdue</translation>
    </message>
    <message id="vx4400eventStrokeTestOverdueOff">
        <source>Stroke test overdue: ended</source>
        <translation>Stroke test overdue: ended</translation>
    </message>
    <message id="vx4400eventSimulationActive">
        <source>Simulation active</source>
        <translation>Simulation active</translation>
    </message>
    <message id="vx4400eventSimulationActiveOff">
        <source>Simulation active: ended</source>
        <translation>Simulation active: ended</translation>
    </message>
    <message id="vx4400eventLocalOperation">
        <source>Local operation</source>
        <translation>Local operation</translation>
    </message>
    <message id="vx4400eventLocalOperationOff">
        <source>Local operation: ended</source>
        <translation>Local operation: ended</translation>
    </message>
    <message id="vx4400eventLoopCurrentFixed">
        <source>Loop current fixed</source>
        <translation>Loop current fixed</translation>
    </message>
    <message id="vx4400eventLoopCurrentFixedOff">
        <source>Loop current fixed: ended</source>
        <translation>Loop current fixed: ended</translation>
    </message>
    <message id="vx4400eventBusTimeout">
        <source>Bus communication interrupted</source>
        <translation>Bus communication interrupted</translation>
    </message>
    <message id="vx4400eventBusTimeoutOff">
        <source>Bus communication interrupted: ended</source>
        <translation>Bus communication interrupted: ended</translation>
    </message>
    <message id="vx4400eventNotCalibrated">
        <source>Travel not calibrated</source>
        <translation>Travel not calibrated</translation>
    </message>
    <message id="vx4400eventNotCalibratedOff">
        <source>Travel not calibrated: ended</source>
        <translation>Travel not calibrated: ended</translation>
    </message>
    <message id="vx4400eventCalibrationRunning">
        <source>Calibration running</source>
        <translation>Calibration running</translation>
    </message>
    <message id="vx4400eventCalibrationRunningOff">
        <source>Calibration running: ended</source>
        <translation>Calibration running: ended</translation>
    </message>
    <message id="vx4400eventWriteProtected">
        <source>Write protection on</source>
        <translation>Write protection on</translation>
    </message>
    <message id="vx4400eventWriteProtectedOff">
        <source>Write protection on: ended</source>
        <translation>Write protection on: ended</translation>
    </message>
    <message id="vx4400eventMaintenanceDue">
        <source>Maintenance due</source>
        <translation>Maintenance due</translation>
    </message>
    <message id="vx4400eventMaintenanceDueOff">
        <source>Maintenance due: ended</source>
        <translation>Maintenance due: ended</translation>
    </message>
    <message id="vx4400eventMasks">
        <source>Status configuration</source>
        <translation>Status configuration</translation>
    </message>
    <message id="vx4400eventMasksOff">
        <source>Status configuration: ended</source>
        <translation>Status configuration: ended</translation>
    </message>
    <message id="vx4400eventMask1">
        <source>Status mask, part 1</source>
        <translation>Status mask, part 1</translation>
    </message>
    <message id="vx4400eventMask1Off">
        <source>Status mask, part 1: ended</source>
        <translation>Status mask, part 1: ended</translation>
    </message>
    <message id="vx4400eventMaskInfo1">
        <source>Information mask, part 1</source>
        <translation>Information mask, part 1</translation>
    </message>
    <message id="vx4400eventMaskInfo1Off">
        <source>Information mask, part 1: ended</source>
        <translation>Information mask, part 1: ended</translation>
    </message>
    <message id="vx4400eventMaskWarning1">
        <source>Warning mask, part 1</source>
        <translation>Warning mask, part 1</translation>
    </message>
    <message id="vx4400eventMaskWarning1Off">
        <source>Warning mask, part 1: ended</source>
        <translation>Warning mask, part 1: ended</translation>
    </message>
    <message id="vx4400eventMaskAlarm1">
        <source>Alarm mask, part 1</source>
        <translation>Alarm mask, part 1</translation>
    </message>
    <message id="vx4400eventMaskAlarm1Off">
        <source>Alarm mask, part 1: ended</source>
        <translation>Alarm mask, part 1: ended</translation>
    </message>
    <message id="vx4400eventMaskOnOff1">
        <source>On/off mask, part 1</source>
        <translation>On/off mask, part 1</translation>
    </message>
    <message id="vx4400eventMaskOnOff1Off">
        <source>On/off mask, part 1: ended</source>
        <translation>On/off mask, part 1: ended</translation>
    </message>
    <message id="vx4400eventMask2">
        <source>Status mask, part 2</source>
        <translation>Status mask, part 2</translation>
    </message>
    <message id="vx4400eventMask2Off">
        <source>Status mask, part 2: ended</source>
        <translation>Status mask, part 2: ended</translation>
    </message>
    <message id="vx4400eventMaskInfo2">
        <source>Information mask, part 2</source>
        <translation>Information mask, part 2</translation>
    </message>
    <message id="vx4400eventMaskInfo2Off">
        <source>Information mask, part 2: ended</source>
        <translation>Information mask, part 2: ended</translation>
    </message>
    <message id="vx4400eventMaskWarning2">
        <source>Warning mask, part 2</source>
        <translation>Warning mask, part 2</translation>
    </message>
    <message id="vx4400eventMaskWarning2Off">
        <source>Warning mask, part 2: ended</source>
        <translation>Warning mask, part 2: ended</translation>
    </message>
    <message id="vx4400eventMaskAlarm2">
        <source>Alarm mask, part 2</source>
        <translation>Alarm mask, part 2</translation>
    </message>
    <message id="vx4400eventMaskAlarm2Off">
        <source>Alarm mask, part 2: ended</source>
        <translation>Alarm mask, part 2: ended</translation>
    </message>
    <message id="vx4400eventMaskOnOff2">
        <source>On/off mask, part 2</source>
        <translation>On/off mask, part 2</translation>
    </message>
    <message id="vx4400eventMaskOnOff2Off">
        <source>On/off mask, part 2: ended</source>
        <translation>On/off mask, part 2: ended</translation>
    </message>
    <message id="vx4400eventMask3">
        <source>Status mask, part 3</source>
        <translation>Status mask, part 3</translation>
    </message>
    <message id="vx4400eventMask3Off">
        <source>Status mask, part 3: ended</source>
        <translation>Status mask, part 3: ended</translation>
    </message>
    <message id="vx4400eventMaskInfo3">
        <source>Information mask, part 3</source>
        <translation>Information mask, part 3</translation>
    </message>
    <message id="vx4400eventMaskInfo3Off">
        <source>Information mask, part 3: ended</source>
        <translation>Information mask, part 3: ended</translation>
    </message>
    <message id="vx4400eventMaskWarning3">
        <source>Warning mask, part 3</source>
        <translation>Warning mask, part 3</translation>
    </message>
    <message id="vx4400eventMaskWarning3Off">
        <source>Warning mask, part 3: ended</source>
        <translation>Warning mask, part 3: ended</translation>
    </message>
    <message id="vx4400eventMaskAlarm3">
        <source>Alarm mask, part 3</source>
        <translation>Alarm mask, part 3</translation>
    </message>
    <message id="vx4400eventMaskAlarm3Off">
        <source>Alarm mask, part 3: ended</source>
        <translation>Alarm mask, part 3: ended</translation>
    </message>
    <message id="vx4400eventMaskOnOff3">
        <source>On/off mask, part 3</source>
        <translation>On/off mask, part 3</translation>
    </message>
    <message id="vx4400eventMaskOnOff3Off">
        <source>On/off mask, part 3: ended</source>
        <translation>On/off mask, part 3: ended</translation>
    </message>
    <message id="statusNotRead">
        <source>not read yet</source>
        <translation>not read yet</translation>
    </message>
    <message id="statusActive">
        <source>active</source>
        <translation>active</translation>
    </message>
    <message id="statusNotActive">
        <source>not active</source>
        <translation>not active</translation>
    </message>
    <message id="statusSwitchedOff">
        <source>switched off</source>
        <translation>switched off</translation>
    </message>
    <message id="statusUnknown">
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message id="shell_sectionLiveValues">
        <source>Live values</source>
        <translation>Live values</translation>
    </message>
    <message id="shell_sectionLimits">
        <source>Limits of the diagnosis</source>
        <translation>Limits of the diagnosis</translation>
    </message>
    <message id="liveValues">
        <source>Live values</source>
        <translation>Live values</translation>
    </message>
    <message id="diagnosisLimits">
        <source>Diagnosis limits</source>
        <translation>Diagnosis limits</translation>
    </message>
    <message id="failsafeAction">
        <source>On loss of signal</source>
        <translation>On loss of signal</translation>
    </message>
    <message id="failsafeDelay">
        <source>Delay of this action</source>
        <translation>Delay of this action</translation>
    </message>
    <message id="serviceInterval">
        <source>Service interval</source>
        <translation>Service interval</translation>
    </message>
    <message id="options">
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message id="shell_pageOptions">
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message id="shell_sectionFailsafe">
        <source>Fail-safe behaviour and service</source>
        <translation>Fail-safe behaviour and service</translation>
    </message>
    <message id="shell_sectionAlarmMask">
        <source>Monitoring</source>
        <translation>Monitoring</translation>
    </message>
    <message id="shell_settings">
        <source>&amp;Settings…</source>
        <translation>&amp;Settings…</translation>
    </message>
    <message id="shell_settingsTip">
        <source>Language, display units and classification</source>
        <translation>Language, display units and classification</translation>
    </message>
    <message id="shell_restartDevice">
        <source>Restart &amp;device</source>
        <translation>Restart &amp;device</translation>
    </message>
    <message id="shell_restartDeviceTip">
        <source>The power of the simulated device goes and comes back</source>
        <translation>The power of the simulated device goes and comes back</translation>
    </message>
    <message id="shell_simulationMeter">
        <source>Meter in the loop</source>
        <translation>Meter in the loop</translation>
    </message>
    <message id="shell_addressRefused">
        <source>The device did not take the address.</source>
        <translation>The device did not take the address.</translation>
    </message>
    <message id="shell_addressChanged">
        <source>The device has the address %1 now.</source>
        <translation>The device has the address %1 now.</translation>
    </message>
    <message id="shell_documentKept">
        <source>The bus configuration was saved.</source>
        <translation>The bus configuration was saved.</translation>
    </message>
    <message id="paTag">
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message id="busAddress">
        <source>Bus address</source>
        <translation>Bus address</translation>
    </message>
</context>
</TS>
