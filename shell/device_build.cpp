#include "shell/device_build.h"

#include "framework/documents.h"
#include "shell/address_service.h"
#include "shell/device_actions.h"
#include "shell/device_events.h"
#include "shell/device_physics.h"
#include "shell/device_status.h"
#include "shell/samples.h"

#include <memory>

namespace quill::shell {

SimulatedDevice buildDevice(const IXMLDOMNode& datafile)
{
    const IXMLDOMNode info   = datafile.selectSingleNode("//typeInfo:internalInfo/@name");
    const Sample*     sample = info ? findSample(info.get_text()) : nullptr;
    if (!sample) {
        return SimulatedDevice{datafile};
    }
    std::string memory = sample->datafile;
    memory.insert(memory.rfind('.'), "_device");

    SimulatedDevice device{datafile, sampleFile(memory)};
    device.add(std::make_unique<DevicePhysics>());
    device.add(std::make_unique<DeviceStatus>(documents::openText(sampleFile(sample->typeInfo))));
    device.add(std::make_unique<DeviceEvents>(readEventHistory(sampleFile("event_history.xml"))));
    if (device.isHart()) {
        device.add(std::make_unique<HartAddress>());
        device.add(std::make_unique<CurrentOutput>());
    }
    device.add(std::make_unique<Resets>(datafile));
    return device;
}

} // namespace quill::shell
