#include "records/CtrChanges.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "platform/toolkit.h"

#include <algorithm>
#include <utility>

namespace quill {

namespace {

constexpr const char* kDownload = "download";
constexpr const char* kAccept   = "accept";

// Below this size the texts would be cut off in the longer languages.
constexpr std::int32_t kSmallestWidth  = 9000;
constexpr std::int32_t kSmallestHeight = 4500;

platform::Design withSize(platform::Design design)
{
    if (design.Width == 0 && design.Height == 0) {
        design.Width  = kSmallestWidth;
        design.Height = 6000;
    }
    return design;
}

/// Moves the items that an editor gives into a request, one step each.
void appendItems(const Steps& step, const IXMLDOMNode& request, const ListContainer& row)
{
    const auto items = step.value(IXMLDOMNodeList{}, [&] {
        IQornDataEditor* editor = row.editor.get();
        if (editor == nullptr) {
            throw platform::failure(platform::kObjectNotSet);
        }
        return editor->GetXmlItem(true).selectNodes("//item");
    });
    for (long place = 0; place < items.get_length(); ++place) {
        step([&] { request.appendChild(items.get_item(place)); });
    }
}

/// The host hears that the dialog has gone and gets the focus back.
void leave(const Steps& step, Messenger* messenger)
{
    step([&] { existing(messenger).NotifyDialog(kDialogGoes); });
    step([&] { existing(messenger).TransferFocus(); });
}

void setAttribute(const Steps& step, const IXMLDOMDocument& work, const IXMLDOMNode& element,
                  const char* name, const std::string& value)
{
    step([&] {
        const auto attribute = work.createAttribute(name);
        attribute.put_value(value);
        element.get_attributes().setNamedItem(attribute);
    });
}

} // namespace

CtrChanges::CtrChanges(const platform::Design& design) : Control(withSize(design))
{
    Initialize();
}

CtrChanges::CtrChanges(platform::Widget& container, const platform::Design& design)
    : Control(container, withSize(design))
{
    Initialize();
}

void CtrChanges::Initialize()
{
    const Steps step{[](int, const std::string&) {
        platform::Toolkit::current().debugOutput("CtrChanges UserControl_Initialize - Error");
    }};
    lblTitle.Bold = true;
    step([&] {
        lstChanges.CheckBoxes = true;
        lstChanges.setColumnHeaders({{lblParameter.Caption, "", lblParameter.Width},
                                     {lblOld.Caption, "", lblOld.Width},
                                     {lblNew.Caption, "", lblNew.Width}});
    });
    step([&] {
        ctrTBLaunchedPanel.ZPosition = static_cast<std::int32_t>(Widgets().size());
        ctrTBLaunchedPanel.TabStop   = false;
        arrange();
    });
    step([&] {
        imlChanges.Add("gradient");
        for (platform::ButtonBase* button : {static_cast<platform::ButtonBase*>(&cmdDownload),
                                             static_cast<platform::ButtonBase*>(&cmdClear),
                                             static_cast<platform::ButtonBase*>(&cmdClose),
                                             static_cast<platform::ButtonBase*>(&chkChanges)}) {
            button->Picture = imlChanges.first();
        }
    });
}

/// The list takes what a larger dialog gives; the buttons stay in the lower right corner.
void CtrChanges::arrange()
{
    constexpr std::int32_t kMargin = 180;
    const std::int32_t     width   = std::max(Width.get(), kSmallestWidth);
    const std::int32_t     height  = std::max(Height.get(), kSmallestHeight);

    ctrTBLaunchedPanel.Width  = width;
    ctrTBLaunchedPanel.Height = height;
    lblTitle.Width            = width - 2 * kMargin;
    lstChanges.Width          = width - 2 * kMargin;
    lstChanges.Height         = height - 1920;
    chkChanges.Top            = height - 1230;
    lblChanges.Top            = height - 1230;
    lblChanges.Width          = width - lblChanges.Left - kMargin;
    std::int32_t right        = width - kMargin;
    for (platform::CommandButton* button : {&cmdClose, &cmdClear, &cmdDownload}) {
        button->Top  = height - 660;
        button->Left = right - button->Width;
        right        = button->Left - 150;
    }
    // The values share what the names leave.
    const std::int64_t shared = lstChanges.Width - 240;
    const auto         value  = static_cast<std::int32_t>(shared * 2250 / 8400);
    lstChanges.setColumnWidth(1, lstChanges.Width - 240 - 2 * value);
    lstChanges.setColumnWidth(2, value);
    lstChanges.setColumnWidth(3, value);
}

void CtrChanges::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    mOnSetChanges.drop();
    mMessenger = messenger;
    if (messenger == nullptr) {
        return;
    }
    mOnMode = messenger->ViewSetCommunicationMode.subscribe(
        [this](std::int32_t mode) { mMessenger_ViewSetCommunicationMode(mode); });
    mOnSetChanges = messenger->DialogSetChanges.subscribe(
        [this](IQornDataEditor* editor, const std::string& tag, const std::string& label,
               const std::string& extra, const std::string& oldText, const std::string& newText,
               const std::string& type, const std::string& contextTag) {
            mMessenger_DialogSetChanges(
                {editor, tag, label, extra, oldText, newText, type, contextTag});
        });
}

void CtrChanges::Localize(Translator& translator)
{
    const Steps step{mMessenger, "CtrChanges: ILocalizable_Localize"};
    for (platform::Widget* widget : platform::WidgetList(Widgets())) {
        if (auto* label = dynamic_cast<platform::Label*>(widget)) {
            step([&] { label->Caption = translator.Translate(label->Tag); });
        } else if (auto* button = dynamic_cast<platform::CommandButton*>(widget)) {
            step([&] { button->Caption = translator.Translate(button->Tag); });
        }
    }
    mobjCaptions.clear();
    for (const char* key : {kDownload, kAccept}) {
        step([&] { mobjCaptions.emplace(key, translator.Translate(key)); });
    }
    int column = 0;
    for (const platform::Label* heading : {&lblParameter, &lblOld, &lblNew}) {
        step([&] { lstChanges.setColumnText(++column, heading->Caption); });
    }
}

void CtrChanges::empty()
{
    ListTools::Reset(maChanges, lstChanges);
}

void CtrChanges::UserControl_Show()
{
    const Steps step{mMessenger, "CtrChanges: UserControl_Show"};
    step([&] { existing(mMessenger).NotifyDialog(kDialogComesUp); });
    chkChanges.Value = 0;
    step([&] { existing(mMessenger).RequestChanges(kModifiedEditors); });
    step([&] { lstChanges.SetFocus(); });
}

void CtrChanges::UserControl_KeyDown(platform::KeyPress& key)
{
    if (key.code == platform::kKeyEscape) {
        key.handled = true;
        cmdClose_Click();
    }
}

void CtrChanges::chkChanges_Click()
{
    const Steps step{mMessenger, "CtrChanges: chkChanges_Click"};
    empty();
    if (chkChanges.Value == 1) {
        step([&] { existing(mMessenger).RequestChanges(kAllEditors); });
    }
    // A modified one that comes for the second time takes the row that it has already.
    step([&] { existing(mMessenger).RequestChanges(kModifiedEditors); });
}

void CtrChanges::lstChanges_ItemCheck(int row)
{
    const Steps step{mMessenger, "CtrChanges: lstChanges_ItemCheck"};
    step([&] {
        const auto& item                                  = lstChanges.Item(row);
        maChanges.rows.at(std::stoul(item.Tag))->selected = item.Checked;
    });
}

void CtrChanges::cmdClear_Click()
{
    const Steps step{mMessenger, "CtrChanges: cmdClear_Click"};
    for (int row = 1; row <= lstChanges.Count(); ++row) {
        step([&] { lstChanges.setChecked(row, false); });
    }
    for (const auto& row : maChanges.rows) {
        if (row) {
            row->selected = false;
        }
    }
}

void CtrChanges::cmdClose_Click()
{
    // The host may let the dialog go while it is told that the dialog goes.
    Messenger*  messenger = mMessenger;
    const Steps step{messenger, "CtrChanges: cmdClose_Click"};
    empty();
    Visible = false;
    leave(step, messenger);
}

void CtrChanges::cmdDownload_Click()
{
    Messenger*  messenger = mMessenger;
    const Steps step{messenger, "CtrChanges: cmdDownload_Click"};
    step([&] { existing(mMessenger).SetDownloadPhase(kBeforeDownload); });
    step([] { platform::Toolkit::current().setMousePointer(platform::kArrowAndHourglass); });
    const auto work = step.value(IXMLDOMDocument{}, [] { return documents::openEmptyRequest(); });
    // Taken out first: what an editor does while it gives its item may book changes anew.
    for (const auto& row : std::exchange(maChanges.rows, {})) {
        if (row && row->selected) {
            addToRequests(step, work, *row);
        }
    }
    sendRequests(step, work);
    empty();
    step([] { platform::Toolkit::current().setMousePointer(platform::kDefaultPointer); });
    Visible = false;
    leave(step, messenger);
    step([&] { existing(messenger).SetDownloadPhase(kAfterDownload); });
}

void CtrChanges::addToRequests(const Steps& step, const IXMLDOMDocument& work,
                               const ListContainer& row)
{
    const std::string& group   = row.requestGroup;
    auto               request = step.value(IXMLDOMNode{}, [&] {
        return work.selectSingleNode("//communicationRequest[@name=\"" + group + "\"]");
    });
    if (request) {
        appendItems(step, request, row);
        return;
    }
    const auto dtm = step.value(IXMLDOMNode{}, [&] { return work.selectSingleNode("//dtm"); });
    if (!dtm) {
        return;
    }
    request = step.value(IXMLDOMNode{}, [&] { return work.createElement("communicationRequest"); });
    setAttribute(step, work, request, "name", group);
    setAttribute(step, work, request, "access", mstrAccess);
    appendItems(step, request, row);
    step([&] { dtm.appendChild(request); });
}

void CtrChanges::sendRequests(const Steps& step, const IXMLDOMDocument& work)
{
    const auto requests =
        step.value(IXMLDOMNodeList{}, [&] { return work.selectNodes("//communicationRequest"); });
    for (long place = 0; place < requests.get_length(); ++place) {
        const auto        request = requests.get_item(place);
        const std::string name =
            step.text([&] { return documents::attributeText(request, "name"); });
        step([&] { existing(mMessenger).SendCommunicationRequest(request.get_xml(), name); });
    }
}

void CtrChanges::showCommand(const Steps& step, const std::string& key)
{
    cmdDownload.Tag = key;
    step([&] {
        const auto text = mobjCaptions.find(key);
        if (text == mobjCaptions.end()) {
            throw platform::failure(platform::kInvalidCall);
        }
        cmdDownload.Caption = text->second;
    });
}

void CtrChanges::mMessenger_ViewSetCommunicationMode(std::int32_t mode)
{
    const Steps step{mMessenger, "CtrChanges: ViewSetCommunicationMode"};
    if (mode == kOnline) {
        mstrAccess = "write";
        showCommand(step, kDownload);
    } else if (mode == kOffline) {
        mstrAccess = "writeOffline";
        showCommand(step, kAccept);
    }
}

void CtrChanges::mMessenger_DialogSetChanges(const ListTools::ChangeArguments& change)
{
    const Steps step{mMessenger, "CtrChanges: mMessenger_DialogSetChanges"};
    step([&] { ListTools::AddChange(maChanges, lstChanges, change); });
}

} // namespace quill
