#pragma once

#include "framework/documents.h"
#include "shell/device.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <string>
#include <utility>

namespace quill::shell::test {

/// A host that is nothing but a wire between a view and a device: what the view sends waits until
/// `deliver` takes it to the device and hands the answers back.
class DeviceHost : public quill::test::RecordingMessenger {
public:
    explicit DeviceHost(SimulatedDevice& device) : mDevice(device)
    {
        translator        = &texts;
        communicationMode = kOnline;
    }

    /// Everything that has been sent so far, in its order.
    std::vector<std::string> sent;
    /// The connection breaks once, after so many messages of an answer.
    std::optional<std::size_t>       breaksAfter;
    quill::test::RecordingTranslator texts;

    void SendCommunicationRequest(const std::string& xml, const std::string& name) override
    {
        RecordingMessenger::SendCommunicationRequest(xml, name);
        send(xml);
    }
    bool ExecuteCommunicationRequest(const std::string& xml, const std::string& progressKey,
                                     std::int16_t first, std::int16_t second) override
    {
        const bool ok =
            RecordingMessenger::ExecuteCommunicationRequest(xml, progressKey, first, second);
        if (ok) {
            send(xml);
        }
        return ok;
    }
    void send(const std::string& xml)
    {
        sent.push_back(xml);
        mWaiting.push_back(xml);
    }

    /// Until nothing is outstanding; a view may send again while it takes an answer.
    void deliver(IQornDataUser& view)
    {
        while (!mWaiting.empty()) {
            const std::string request = std::exchange(mWaiting.front(), {});
            mWaiting.pop_front();
            auto answers = mDevice.answer(request);
            if (const auto left = std::exchange(breaksAfter, std::nullopt)) {
                answers.resize(std::min(*left, answers.size()));
                answers.push_back(
                    refusal(DeviceRequest::parse(request), "communicationError").front());
            }
            for (const std::string& text : answers) {
                const auto response = documents::openText(text);
                if (documents::responseAttribute(response, "responseStatus") == "ok") {
                    view.SetOnlineData(response);
                } else {
                    view.SetErrorData(response);
                }
            }
        }
    }

private:
    SimulatedDevice&        mDevice;
    std::deque<std::string> mWaiting;
};

} // namespace quill::shell::test
