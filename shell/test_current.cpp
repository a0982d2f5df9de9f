#include "shell/test_current.h"

#include "framework/documents.h"
#include "shell/device_messages.h"

#include <algorithm>

namespace quill::shell {

namespace {

constexpr const char* kTestValue = "loopTestValue";

} // namespace

std::string TestCurrentWatch::endRequest()
{
    return std::string("<communicationRequest name=\"") + kName + "\" access=\"write\">" +
           documents::itemDocument(kTestValue, "mA", "floatVal", "0.0").get_xml() +
           "</communicationRequest>";
}

void TestCurrentWatch::sent(const std::string& requestXml)
{
    const DeviceRequest            request = DeviceRequest::parse(requestXml);
    const DeviceRequestItem* const item    = request.find(kTestValue);
    if (!item || !request.isWrite()) {
        mPending.push_back(Effect::none);
        return;
    }
    // What is no number may make a current flow.
    mPending.push_back(numberIn(item->value) == 0.0 ? Effect::off : Effect::on);
}

void TestCurrentWatch::answered(const IXMLDOMNode& response)
{
    if (mPending.empty() || documents::responseAttribute(response, "name") != kName ||
        documents::responseAttribute(response, "access") != "write" ||
        documents::responseAttribute(response, "isFinal") != "1") {
        return;
    }
    const Effect effect = mPending.front();
    mPending.pop_front();
    if (effect != Effect::none &&
        documents::responseAttribute(response, "responseStatus") == "ok") {
        mFlows = effect == Effect::on;
    }
}

void TestCurrentWatch::forgetRequests()
{
    // One that was to end a current may have been lost on its way.
    mFlows = mFlows || std::ranges::find(mPending, Effect::on) != mPending.end();
    mPending.clear();
}

bool TestCurrentWatch::mayFlow() const
{
    const auto last = std::find_if(mPending.rbegin(), mPending.rend(),
                                   [](Effect effect) { return effect != Effect::none; });
    return last == mPending.rend() ? mFlows : *last == Effect::on;
}

} // namespace quill::shell
