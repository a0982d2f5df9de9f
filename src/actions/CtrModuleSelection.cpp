#include "actions/CtrModuleSelection.h"

#include "actions/bus_configuration.h"
#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/modTools.h"
#include "platform/utf8.h"

#include <algorithm>

namespace quill {

namespace {

constexpr const char* kHostDocument = "FDT";

/// A document that understands the prefixes of module descriptions.
IXMLDOMDocument makeDocument()
{
    auto document = IXMLDOMDocument::create();
    document.setSelectionNamespaces(
        {{"param", documents::kParameterSchema}, {"fdt", documents::kFDTSchema}});
    return document;
}

/// The word at a digit; what is no number is reported and counts as 0.
int lengthAt(const Steps& step, const std::string& configuration, int digit)
{
    return step.value(0, [&] {
        const auto length = busConfiguration::wordAt(configuration, digit);
        if (!length) {
            throw platform::failure(platform::kTypeMismatch);
        }
        return *length;
    });
}

/// What of a bus configuration stays when its module is replaced.
struct Cut {
    std::string head; ///< behind the total length, to the end of the first block
    std::string tail;
};

Cut cut(const Steps& step, const std::string& configuration)
{
    using namespace busConfiguration;
    const int first  = lengthAt(step, configuration, 33);
    const int second = lengthAt(step, configuration, 33 + 2 * first);
    return {step.text([&] { return piece(configuration, 5, 2 * first + 28); }),
            step.text([&] { return rest(configuration, 33 + 2 * (first + second)); })};
}

/// The whole configuration around another module's.
std::string around(const Steps& step, const Cut& cut, const std::string& module)
{
    using busConfiguration::word;
    const auto bytesOf = [](const std::string& text) { return platform::utf8::length(text) / 2.0; };
    const auto length  = step.text([&] { return word(bytesOf(module) + 2); });
    const auto body    = cut.head + length + module + cut.tail;
    return step.text([&] { return word(bytesOf(body) + 2); }) + body;
}

} // namespace

CtrModuleSelection::CtrModuleSelection(const platform::Design& design)
    : PageView("CtrModuleSelection", design)
{
    UserControl_Initialize();
}

CtrModuleSelection::CtrModuleSelection(platform::Widget& container, const platform::Design& design)
    : PageView("CtrModuleSelection", container, design)
{
    UserControl_Initialize();
}

void CtrModuleSelection::UserControl_Initialize()
{
    paintFrames();
    BackColor     = frmModuleSelection.BackColor.get();
    lblTitle.Bold = true;
    // The host's document may name a module that the parameter document does not have.
    ModuleSelection.Editable = true;
    mParameterDocument       = makeDocument();
}

Steps CtrModuleSelection::steps(const char* procedure)
{
    const std::string place = std::string(className()) + " " + procedure + ": ";
    return Steps{[this, place](int number, const std::string& description) {
        if (GetMessenger() != nullptr) {
            GetMessenger()->ReportErrorObject(place, number, description);
        } else {
            modTools::WriteDebugError("Quill GUI", place, number, description);
        }
    }};
}

void CtrModuleSelection::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    PageView::SetMessenger(messenger);
    if (messenger == nullptr) {
        return;
    }
    mOnMode =
        messenger->ViewSetCommunicationMode.subscribe([this](std::int32_t mode) { mMode = mode; });
    findDocumentsFolder(steps("SetMessenger"));
    mParameterDocument = makeDocument();
}

void CtrModuleSelection::findDocumentsFolder(const Steps& step)
{
    // A host that fails must not leave the folder of an earlier device.
    mDocumentsFolder = step.text([&] { return host().GetInstallPath(); }) + "Documents\\";
}

void CtrModuleSelection::Localize(Translator& translator)
{
    steps("Localize")([&] { modView::Localize(*this, translator); });
    fitButton();
}

/// A long caption takes its room from the box.
void CtrModuleSelection::fitButton()
{
    constexpr std::int32_t kLeft  = 6200;
    constexpr std::int32_t kRight = 8800;
    cmdSetSelection.Width         = buttonWidth(cmdSetSelection.Caption, 1500);
    cmdSetSelection.Left          = std::min(kLeft, kRight - cmdSetSelection.Width);
    ModuleSelection.Width         = cmdSetSelection.Left - 200 - ModuleSelection.Left;
}

void CtrModuleSelection::SetImportData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_setImportData")([&] { modView::setImportData(*this, node); });
}

IXMLDOMDocument CtrModuleSelection::openHostDocument(const Steps& step)
{
    auto document = makeDocument();
    step([&] { document.loadXML(host().GetHostDocument(kHostDocument)); });
    return document;
}

void CtrModuleSelection::SetOfflineData(const IXMLDOMNode& node)
{
    const Steps step = steps("SetOfflineData");
    findDocumentsFolder(step);
    listModules(step, node);
    const IXMLDOMDocument document = openHostDocument(step);
    IXMLDOMNodeList       names;
    if (document.get_documentElement()) {
        step([&] { names = document.selectNodes("//param:Module/fdt:VersionInformation"); });
    }
    for (const IXMLDOMNode& name : names) {
        step([&] { ModuleSelection.setText(""); });
        step([&] { ModuleSelection.setText(documents::attributeText(name, "name")); });
    }
    ModuleSelection_Click();
}

void CtrModuleSelection::listModules(const Steps& step, const IXMLDOMNode& datafile)
{
    std::string file;
    step([&] {
        const auto info = datafile.selectSingleNode("//typeInfo:internalInfo");
        if (info) {
            file = documents::attributeText(info, "parameterfile");
        }
    });
    ModuleSelection.Clear();
    // A file that cannot be read must not leave the modules of another device to choose from.
    mParameterDocument = makeDocument();
    if (!step([&] { mParameterDocument.load(mDocumentsFolder + file); })) {
        return;
    }
    const auto names = step.value(IXMLDOMNodeList{}, [&] {
        return mParameterDocument.selectNodes("//fdt:VersionInformation");
    });
    for (const IXMLDOMNode& name : names) {
        ModuleSelection.AddItem(step.text([&] { return documents::attributeText(name, "name"); }));
    }
}

IXMLDOMNode CtrModuleSelection::chosenModule(const Steps& step) const
{
    return step.value(IXMLDOMNode{}, [&] {
        const auto version = mParameterDocument.selectSingleNode(
            "//fdt:VersionInformation[@name=\"" + ModuleSelection.Text() + "\"]");
        return version ? version.get_parentNode() : IXMLDOMNode{};
    });
}

void CtrModuleSelection::cmdSetSelection_Click()
{
    const Steps           step     = steps("cmdSetSelectoinClick");
    const IXMLDOMDocument document = openHostDocument(step);
    if (!document.get_documentElement()) {
        return;
    }
    const auto select = [&](const char* path) {
        return step.value(IXMLDOMNode{}, [&] { return document.selectSingleNode(path); });
    };
    const auto read = [&](const IXMLDOMNode& node, const char* name) {
        return node ? step.text([&] { return documents::attributeText(node, name); })
                    : std::string{};
    };
    const IXMLDOMNode bus           = select("//param:MasterSlaveBus");
    const IXMLDOMNode module        = select("//param:Module");
    const std::string configuration = read(bus, "busMasterConfigurationPart");
    (void)read(module, "configurationData"); // a module without it is worth a report

    const Cut         kept  = cut(step, configuration);
    const IXMLDOMNode fresh = chosenModule(step);
    if (!fresh) {
        return;
    }
    const std::string rebuilt = around(step, kept, read(fresh, "configurationData"));
    if (bus) {
        step([&] { platform::attributeNode(bus, "busMasterConfigurationPart").put_text(rebuilt); });
    }
    step([&] { module.get_parentNode().replaceChild(fresh.cloneNode(true), module); });
    step([&] { (void)host().SetHostDocument(kHostDocument, document.get_xml()); });
}

void CtrModuleSelection::ModuleSelection_Click()
{
    // A long name can be cut off.
    ModuleSelection.ToolTipText = ModuleSelection.Text();
}

} // namespace quill
