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
        <source>Current 4 to 20 mA</source>
        <translation>Current 4 to 20 mA</translation>
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
        <source>sample VX4400H</source>
        <translation>sample VX4400H</translation>
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
        <source>Open the &amp;sample</source>
        <translation>Open the &amp;sample</translation>
    </message>
    <message id="shell_openSampleTip">
        <source>Opens the sample datafile of the VX4400H</source>
        <translation>Opens the sample datafile of the VX4400H</translation>
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
        <source>Alarms and burst mode</source>
        <translation>Alarms and burst mode</translation>
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
</context>
</TS>
