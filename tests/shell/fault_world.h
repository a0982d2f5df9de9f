#pragma once

#include "device_host.h"
#include "device_requests.h"
#include "framework/named_callbacks.h"
#include "shell/address_service.h"
#include "shell/units.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"
#include "temporary_folder.h"

namespace quill::shell::test {

/// The page that the views stand on; the settings call it by name.
class Stage : public quill::test::TestPage, public NamedCallbacks {
public:
    using TestPage::TestPage;
    std::vector<std::string> called;

    void callByName(const std::string& method, const std::vector<std::string>&) override
    {
        called.push_back(method);
    }
};

/// A device with its datafile, a host with all its services, and a page.
struct World {
    explicit World(const char* type)
        : device(fullDevice(type)),
          datafile(documents::openText(sampleText(std::string(type) + ".xml"))),
          info(typeInfo(type))
    {
        host.deviceTypeInfo       = info;
        host.converter            = &units;
        host.addressService       = &addresses;
        host.communicationMode    = kOffline;
        host.configurationChanged = true;
    }
    ~World()
    {
        host.stopFailing();
        host.onCall             = nullptr;
        toolkit.beforeOperation = nullptr;
        views.clear();
    }
    World(const World&)            = delete;
    World& operator=(const World&) = delete;

    template <class View>
    View& add(const char* name, const std::string& tag)
    {
        auto& frame = *frames.emplace_back(std::make_unique<platform::Frame>(
            page, platform::Design{.Name = name, .Tag = tag, .Width = 9000, .Height = 6000}));
        auto  made  = std::make_unique<View>(
            frame,
            platform::Design{
                  .Name = std::string(name) + "View", .Tag = tag, .Width = 9000, .Height = 6000});
        View& view = *made;
        views.push_back(std::move(made));
        return view;
    }
    /// Brings a view to where a user finds it: with texts, the datafile, and online.
    template <class View>
    void begin(View& view)
    {
        view.SetMessenger(&host);
        view.Localize(host.texts);
        if constexpr (std::is_base_of_v<IQornDataUser, View>) {
            view.SetOfflineData(datafile);
            view.Localize(host.texts);
        }
        host.communicationMode = kOnline;
        host.ViewSetCommunicationMode.raise(kOnline);
        host.ViewSetUnits.raise();
    }
    void exchange(IQornDataUser& view, const std::string& message)
    {
        host.send(message);
        host.deliver(view);
    }
    /// Responses that are about nothing, are none, or carry an error.
    void finish(IQornDataUser& view, const std::string& request)
    {
        view.SetErrorData(documents::openText(
            refusal(DeviceRequest::parse(request), "communicationError").front()));
        view.SetImportData(datafile);
        for (const IXMLDOMNode& nothing :
             {IXMLDOMNode{}, IXMLDOMNode{documents::openText("<nothing/>")}}) {
            view.SetOnlineData(nothing);
            view.SetErrorData(nothing);
            view.SetImportData(nothing);
            view.SetOfflineData(nothing);
        }
        host.ViewSetCommunicationMode.raise(kEditingBarred);
        host.ViewSetCommunicationMode.raise(kOffline);
    }

    quill::test::ToolkitScope                       toolkit;
    TemporaryFolder                                 folder;
    SimulatedDevice                                 device;
    IXMLDOMDocument                                 datafile;
    IXMLDOMDocument                                 info;
    HartUnitConverter                               units;
    DeviceAddressService                            addresses{device};
    DeviceHost                                      host{device};
    Stage                                           page{platform::Design{.Name = "page"}};
    std::vector<std::unique_ptr<platform::Frame>>   frames;
    std::vector<std::unique_ptr<platform::Control>> views;
    std::vector<std::string>                        told; ///< by classes that show nothing
};

} // namespace quill::shell::test
