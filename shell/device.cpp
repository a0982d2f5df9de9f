#include "shell/device.h"

#include "framework/documents.h"
#include "framework/shared_value_list.h"
#include "framework/steps.h"
#include "framework/values.h"
#include "platform/date_time.h"
#include "platform/failure.h"
#include "platform/utf8.h"
#include "shell/units.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quill::shell {

namespace {

using documents::attributeText;
using platform::Failure;

/// Three whole numbers with the same separator between, as "d.m.yyyy" and "h:n:s" are written.
std::optional<std::array<int, 3>> triple(const std::string& text, char separator)
{
    std::array<int, 3> parts{};
    const char*        at  = text.data();
    const char*        end = at + text.size();
    for (int& part : parts) {
        const auto result = std::from_chars(at, end, part);
        if (result.ec != std::errc{}) {
            return std::nullopt;
        }
        at = result.ptr;
        if (&part != &parts.back() && (at == end || *at++ != separator)) {
            return std::nullopt;
        }
    }
    return at == end ? std::optional{parts} : std::nullopt;
}

bool isDateOrTime(const std::string& text)
{
    if (const auto date = triple(text, '.')) {
        return platform::isValid({(*date)[2], (*date)[1], (*date)[0], 0, 0, 0});
    }
    const auto time = triple(text, ':');
    return time && platform::isValid({2000, 1, 1, (*time)[0], (*time)[1], (*time)[2]});
}

} // namespace

SimulatedDevice::SimulatedDevice(const IXMLDOMNode& datafile, const std::string& memory)
{
    if (const IXMLDOMNode name = datafile.selectSingleNode("//typeInfo:internalInfo/@name")) {
        mTypeName = name.get_text();
    }
    addParameters(datafile);
    addGroups(datafile);
    if (!memory.empty()) {
        loadMemory(memory);
    }
}

void SimulatedDevice::addParameters(const IXMLDOMNode& datafile)
{
    const Steps silent = silentSteps();
    for (const IXMLDOMNode& node :
         datafile.selectNodes("./data:dtm/data:persistentData/data:parameters/data:parameter")) {
        const std::string name = attributeText(node, "name");
        DeviceParameter   parameter;
        parameter.type     = attributeText(node, "type");
        parameter.value    = optionalAttribute(node, "value");
        parameter.unit     = optionalAttribute(node, "unit");
        parameter.minimum  = numberIn(optionalAttribute(node, "minVal"));
        parameter.maximum  = numberIn(optionalAttribute(node, "maxVal"));
        parameter.writable = values::containsNoCase(optionalAttribute(node, "access"), "write");
        // A parameter with limits is a number, also where a list names its bits.
        if (values::isNumericType(parameter.type) && !parameter.minimum && !parameter.maximum) {
            IXMLDOMNode list = documents::findMappedParam(datafile, name);
            if (!list) {
                list = modView::findSharedValueList(silent, nullptr, "ctr_" + name, datafile);
            }
            if (list) {
                for (const IXMLDOMNode& value : list.selectNodes("./data:mapping/@value")) {
                    parameter.choices.insert(value.get_text());
                }
            }
        }
        mParameters.try_emplace(name, std::move(parameter));
    }
}

void SimulatedDevice::addGroups(const IXMLDOMNode& datafile)
{
    for (const IXMLDOMNode& group :
         datafile.selectNodes("./data:dtm/data:requestGroups/data:requestGroup")) {
        auto& members = mGroups[attributeText(group, "name")];
        for (const IXMLDOMNode& name : group.selectNodes("./data:includedParam/@name")) {
            members.push_back(name.get_text());
        }
    }
}

void SimulatedDevice::loadMemory(const std::string& memory)
{
    const IXMLDOMDocument document = documents::openText(memory);
    for (const IXMLDOMNode& item : document.selectNodes("//comm:item")) {
        const auto found = mParameters.find(attributeText(item, "name"));
        if (found == mParameters.end()) {
            continue;
        }
        DeviceParameter&  parameter = found->second;
        const std::string unit      = attributeText(item, "unit");
        if (unit != documents::kNoUnit && unit != parameter.unit) {
            for (auto* limit : {&parameter.minimum, &parameter.maximum}) {
                if (*limit) {
                    *limit = convertUnit(**limit, parameter.unit, unit);
                }
            }
            parameter.unit = unit;
        }
        parameter.value = documents::itemValue(item, parameter.type);
    }
}

std::vector<std::string> SimulatedDevice::answer(const std::string& requestXml)
{
    DeviceRequest request;
    try {
        request = DeviceRequest::parse(requestXml);
    } catch (const Failure&) {
        // A device that understands nothing says nothing, and the host's driver reports that.
        return refusal({}, kErrNotUnderstood);
    }
    const auto group = mGroups.find(request.name);
    if (request.items.empty() && group != mGroups.end()) {
        for (const std::string& member : group->second) {
            request.items.push_back({member, {}, {}});
        }
    }
    if (!mPrepared.empty()) {
        return answerPreparedFailure(request);
    }
    for (const auto& function : mFunctions) {
        if (auto answered = function->answer(*this, request)) {
            return *std::move(answered);
        }
    }
    return answerFromParameters(request);
}

std::vector<std::string> SimulatedDevice::answerPreparedFailure(const DeviceRequest& request)
{
    const PreparedFailure failure = std::move(mPrepared.front());
    mPrepared.pop_front();
    if (failure.items.empty()) {
        return refusal(request, failure.errorCode);
    }
    DeviceResponse response{request, failure.errorCode};
    for (const std::string& item : failure.items) {
        response.addItem(item);
    }
    return messageTexts({std::move(response)});
}

std::vector<std::string> SimulatedDevice::answerFromParameters(const DeviceRequest& request)
{
    const bool isEmptyGroup = request.items.empty() && mGroups.contains(request.name);
    if ((request.items.empty() && !isEmptyGroup) || (!request.isRead() && !request.isWrite())) {
        return messageTexts({DeviceResponse{request, kErrUnknownCommand}});
    }
    return compose(request, serve(request));
}

SimulatedDevice::Served SimulatedDevice::serve(const DeviceRequest& request)
{
    Served served;
    for (const DeviceRequestItem& item : request.items) {
        std::string errorCode = request.isWrite() ? write(item) : failureOf(item.name);
        if (errorCode.empty() && !find(item.name)) {
            errorCode = kErrMissingItems;
        }
        if (errorCode.empty()) {
            served.items.push_back(item.name);
        } else {
            served.refusals.add(errorCode, item.name);
        }
    }
    if (request.isWrite() && !served.items.empty()) {
        for (const auto& function : mFunctions) {
            function->written(*this, served.items);
        }
    }
    return served;
}

std::vector<std::string> SimulatedDevice::compose(const DeviceRequest& request,
                                                  const Served&        served,
                                                  std::size_t          itemsInPart) const
{
    std::vector<DeviceResponse> parts;
    if (!served.items.empty() || served.refusals.isEmpty()) {
        parts.emplace_back(request);
    }
    std::size_t inPart = 0;
    for (const std::string& name : served.items) {
        if (inPart == itemsInPart && itemsInPart > 0) {
            parts.emplace_back(request);
            inPart = 0;
        }
        const DeviceParameter& parameter = mParameters.at(name);
        parts.back().addItem(name, parameter.unit, parameter.type, parameter.value);
        ++inPart;
    }
    served.refusals.appendTo(parts, request);
    return messageTexts(std::move(parts));
}

void SimulatedDevice::add(std::unique_ptr<DeviceFunction> function)
{
    DeviceFunction& added = *mFunctions.emplace_back(std::move(function));
    added.start(*this);
}

void SimulatedDevice::advance(double seconds)
{
    // A function sees the others as they stand at the end of each piece.
    constexpr double kPiece = 1;
    for (double left = seconds; left > 0; left -= kPiece) {
        for (const auto& function : mFunctions) {
            function->advance(*this, std::min(left, kPiece));
        }
    }
}

void SimulatedDevice::tellCondition(const std::string& condition, bool active)
{
    for (const auto& function : mFunctions) {
        function->conditionChanged(*this, condition, active);
    }
}

std::string SimulatedDevice::write(const DeviceRequestItem& item)
{
    std::string errorCode = failureOf(item.name);
    if (!errorCode.empty()) {
        return errorCode;
    }
    const auto found = mParameters.find(item.name);
    if (found == mParameters.end()) {
        return kErrMissingItems;
    }
    DeviceParameter& parameter = found->second;
    if (!parameter.writable) {
        return kErrNotWritable;
    }
    for (const auto& function : mFunctions) {
        errorCode = function->refuses(*this, item);
        if (!errorCode.empty()) {
            return errorCode;
        }
    }
    return take(parameter, item) ? "" : kErrWrongValue;
}

bool SimulatedDevice::take(DeviceParameter& parameter, const DeviceRequestItem& item)
{
    if (!values::isNumericType(parameter.type)) {
        if (parameter.type == "dateVal" && !isDateOrTime(item.value)) {
            return false;
        }
        auto characters = platform::utf8::characters(item.value);
        if (parameter.maximum && static_cast<double>(characters.size()) > *parameter.maximum) {
            characters.resize(static_cast<std::size_t>(std::max(0.0, *parameter.maximum)));
        }
        parameter.value.clear();
        for (const std::string& character : characters) {
            parameter.value += character;
        }
        return true;
    }

    const auto given = numberIn(item.value);
    if (!given) {
        return false;
    }
    double     taken  = *given;
    const bool noUnit = item.unit.empty() || item.unit == documents::kNoUnit;
    if (!noUnit && item.unit != parameter.unit) {
        const auto converted = convertUnit(taken, item.unit, parameter.unit);
        if (!converted) {
            return false;
        }
        taken = *converted;
    }
    if (values::isIntegerType(parameter.type)) {
        taken = std::nearbyint(taken);
    }
    if (!parameter.choices.empty() &&
        std::ranges::none_of(parameter.choices, [&](const std::string& choice) {
            return numberIn(choice) == taken;
        })) {
        return false;
    }
    taken = std::max(taken, parameter.minimum.value_or(taken));
    taken = std::min(taken, parameter.maximum.value_or(taken));
    // A value that is taken as it came keeps its digits.
    parameter.value =
        taken == *given ? item.value : values::documentText(static_cast<float>(taken));
    return true;
}

void SimulatedDevice::failNext(const std::string& errorCode, std::vector<std::string> items)
{
    mPrepared.push_back({errorCode, std::move(items)});
}

void SimulatedDevice::failAlways(const std::string& parameter, const std::string& errorCode)
{
    if (errorCode.empty()) {
        mFailing.erase(parameter);
    } else {
        mFailing[parameter] = errorCode;
    }
}

std::string SimulatedDevice::failureOf(const std::string& parameter) const
{
    const auto failing = mFailing.find(parameter);
    return failing == mFailing.end() ? std::string{} : failing->second;
}

const DeviceParameter* SimulatedDevice::find(const std::string& parameter) const
{
    const auto found = mParameters.find(parameter);
    return found == mParameters.end() ? nullptr : &found->second;
}

void SimulatedDevice::set(const std::string& parameter, const std::string& value)
{
    const auto found = mParameters.find(parameter);
    if (found == mParameters.end()) {
        throw Failure(platform::kInvalidCall, "the device has no parameter " + parameter);
    }
    found->second.value = value;
}

} // namespace quill::shell
