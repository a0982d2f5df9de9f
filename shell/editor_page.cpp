#include "shell/editor_page.h"

#include "editors/CtrCheckEdit.h"
#include "editors/CtrComboEdit.h"
#include "editors/CtrDateEdit.h"
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTextEdit.h"
#include "editors/CtrTimeEdit.h"
#include "editors/typed_editor.h"
#include "framework/caption_width.h"
#include "framework/documents.h"
#include "shell/forwarding_messenger.h"
#include "shell/row_metrics.h"

#include <algorithm>

namespace quill::shell {

namespace {

// Lengths in twips.
constexpr std::int32_t kMargin       = kPageMargin;
constexpr std::int32_t kTextTop      = (kRowHeight - kTextHeight) / 2; ///< of a label in its row
constexpr std::int32_t kGap          = 180;
constexpr std::int32_t kBoxWidth     = 2400;
constexpr std::int32_t kWideBox      = 3900; ///< for long texts
constexpr std::int32_t kLongText     = 20;   ///< characters
constexpr std::int32_t kArrowWidth   = 600;  ///< of a drop-down list
constexpr std::int32_t kSignsWidth   = 400;  ///< right of a box, with their gap
constexpr std::int32_t kUnitRoom     = 900;
constexpr std::int32_t kMarkWidth    = 450;  ///< of an option, with its gap
constexpr std::int32_t kCheckWidth   = 720;  ///< of sign and mark of a row of checks
constexpr std::int32_t kDuration     = 4500; ///< boxes for days, hours, minutes and seconds
constexpr std::int32_t kButtonMargin = 420;

/// Width of the box that shows every entry of a list.
std::int32_t listWidth(const EditorCore& editor)
{
    std::int32_t width = kBoxWidth;
    if (const auto* combo = dynamic_cast<const CtrComboEdit*>(&editor)) {
        for (const auto& entry : combo->cboBox.List()) {
            width = std::max(width, captionWidth(entry) + kArrowWidth);
        }
    } else if (const auto* options = dynamic_cast<const CtrOptionEdit*>(&editor)) {
        for (std::size_t place = 0; place < options->OptionCount(); ++place) {
            width = std::max(width, captionWidth(options->Option(place).Caption) + kMarkWidth);
        }
    } else if (const auto* checks = dynamic_cast<const CtrCheckEdit*>(&editor)) {
        for (int row = 1; row <= checks->scgCheck.RowCount(); ++row) {
            width = std::max(width, captionWidth(checks->scgCheck.cell(row, 2).Text) + kCheckWidth);
        }
    } else if (dynamic_cast<const CtrTimeEdit*>(&editor) != nullptr) {
        width = kDuration;
    }
    return width;
}

/// Width of the box that suits what the editor can hold, beside others of a usual width.
std::int32_t boxWidth(const EditorCore& editor, std::int32_t usual)
{
    if (const auto* text = dynamic_cast<const CtrTextEdit*>(&editor)) {
        const bool isLong =
            text->txtBox.MaxLength > kLongText || captionWidth(text->Text()) > kBoxWidth - kGap;
        return isLong ? std::max(kWideBox, usual) : usual;
    }
    return usual;
}

/// Height of the first line of an editor, beside which its label stands.
std::int32_t firstLine(const EditorCore& editor)
{
    const auto* options = dynamic_cast<const CtrOptionEdit*>(&editor);
    return options != nullptr && options->OptionCount() > 0 ? options->Option(0).Height.get()
                                                            : kRowHeight;
}

std::int32_t unitWidth(const EditorCore& editor)
{
    const auto* text = dynamic_cast<const CtrTextEdit*>(&editor);
    return text != nullptr ? captionWidth(text->Unit()) : 0;
}

std::unique_ptr<EditorCore> makeEditor(platform::Frame& frame, const PageRow& row)
{
    const platform::Design design{
        .Name = row.parameter, .Tag = "ctr_" + row.parameter, .Height = kRowHeight};
    switch (row.kind) {
    case PageRow::Kind::combo: return std::make_unique<CtrComboEdit>(frame, design);
    case PageRow::Kind::text: return std::make_unique<CtrTextEdit>(frame, design);
    case PageRow::Kind::option: return std::make_unique<CtrOptionEdit>(frame, design);
    case PageRow::Kind::check: return std::make_unique<CtrCheckEdit>(frame, design);
    case PageRow::Kind::duration: return std::make_unique<CtrTimeEdit>(frame, design);
    case PageRow::Kind::date:
    case PageRow::Kind::time: break;
    }
    auto editor = std::make_unique<CtrDateEdit>(frame, design);
    editor->SetPickerFormat(static_cast<std::int32_t>(row.kind == PageRow::Kind::time
                                                          ? platform::PickerFormat::time
                                                          : platform::PickerFormat::shortDate));
    return editor;
}

/// For an editor whose rows report for themselves under the one name of the parameter: that one of
/// them is as it was does not mean that the parameter is.
class RowsMessenger : public ForwardingMessenger {
public:
    RowsMessenger(Messenger& other, const EditorCore& editor)
        : ForwardingMessenger(other), mEditor(editor)
    {
    }

    void SetParameterState(const std::string& parameterName, const std::string& state) override
    {
        const bool isOtherwise = state == "original" && mEditor.Modified();
        ForwardingMessenger::SetParameterState(parameterName, isOtherwise ? "edited" : state);
    }

private:
    const EditorCore& mEditor;
};

} // namespace

struct EditorPage::Row {
    Row(platform::Frame& section, const PageRow& row)
        : parameter(row.parameter),
          label(section, {.Name = "lbl_" + row.parameter, .Tag = "ctr_" + row.parameter}),
          frame(section, {.Name = "frm_" + row.parameter, .Tag = row.parameter}),
          editor(makeEditor(frame, row))
    {
    }

    std::string                 parameter;
    platform::Label             label;
    platform::Frame             frame;
    std::unique_ptr<EditorCore> editor;
    std::unique_ptr<Messenger>  messenger; ///< of an editor that needs one of its own
};

struct EditorPage::Section {
    Section(EditorPage& page, const PageSection& description)
        : title(description.title), group(description.group),
          frame(page, {.Name = "section_" + description.title, .Tag = description.title})
    {
    }

    std::string                              title;
    std::string                              group;
    platform::Frame                          frame;
    std::vector<std::unique_ptr<Row>>        rows;
    std::unique_ptr<platform::Label>         lblRead;
    std::unique_ptr<CtrDateLabel>            date;
    std::unique_ptr<platform::CommandButton> cmdRead;
    platform::Subscription                   onRead;
};

EditorPage::EditorPage(platform::Widget& container, const PageDescription& description)
    : Page(container, description)
{
    for (const auto& section : this->description().sections) {
        addSection(section);
    }
}

EditorPage::~EditorPage() = default;

void EditorPage::addSection(const PageSection& description)
{
    auto& section = *mSections.emplace_back(std::make_unique<Section>(*this, description));
    for (const auto& row : description.rows) {
        addRow(section, row);
    }
    if (!section.group.empty()) {
        addReading(section);
    }
}

void EditorPage::addRow(Section& section, const PageRow& row)
{
    section.rows.push_back(std::make_unique<Row>(section.frame, row));
}

void EditorPage::addReading(Section& section)
{
    const std::string& group = section.group;
    section.lblRead          = std::make_unique<platform::Label>(
        section.frame, platform::Design{.Name = "lblRead_" + group, .Tag = "shell_lastRead"});
    section.date = std::make_unique<CtrDateLabel>(
        section.frame,
        platform::Design{.Name = "date_" + group, .Tag = "date_" + group, .Height = kTextHeight});
    section.cmdRead = std::make_unique<platform::CommandButton>(
        section.frame,
        platform::Design{.Name = "cmdRead_" + group, .Tag = "shell_readSection", .Enabled = false});
    section.onRead = section.cmdRead->Click.subscribe([this, group] {
        Messenger* const messenger = GetMessenger();
        if (messenger != nullptr &&
            (!hasEdits(group) || messenger->AskQuestion("shell_readSection",
                                                        "shell_readQuestion") == kPositiveAnswer)) {
            messenger->ExecuteNamedRequest(group, "reading", 0, 0);
        }
    });
}

EditorPage::Row* EditorPage::row(const std::string& parameter) const
{
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            if (row->parameter == parameter) {
                return row.get();
            }
        }
    }
    return nullptr;
}

EditorCore* EditorPage::find(const std::string& parameter) const
{
    Row* const found = row(parameter);
    return found != nullptr ? found->editor.get() : nullptr;
}

platform::Label* EditorPage::labelOf(const std::string& parameter) const
{
    Row* const found = row(parameter);
    return found != nullptr ? &found->label : nullptr;
}

platform::CommandButton* EditorPage::readButton(const std::string& group) const
{
    for (const auto& section : mSections) {
        if (section->group == group) {
            return section->cmdRead.get();
        }
    }
    return nullptr;
}

std::vector<std::string> EditorPage::groups() const
{
    std::vector<std::string> result;
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            const std::string group = row->editor->ContextTag();
            if (!group.empty() && std::find(result.begin(), result.end(), group) == result.end()) {
                result.push_back(group);
            }
        }
    }
    return result;
}

bool EditorPage::hasEdits(const std::string& group) const
{
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            if (row->editor->Modified() && (group.empty() || row->editor->ContextTag() == group)) {
                return true;
            }
        }
    }
    return false;
}

bool EditorPage::findsItem(const IXMLDOMNodeList& items) const
{
    for (const IXMLDOMNode& item : items) {
        if (find(documents::attributeText(item, "name")) != nullptr) {
            return true;
        }
    }
    return false;
}

bool EditorPage::isConcernedBy(const IXMLDOMNode& errorResponse) const
{
    return findsItem(documents::errorItems(errorResponse));
}

// --- Layout -----------------------------------------------------------------------------------

std::int32_t EditorPage::labelWidth() const
{
    std::int32_t width = 0;
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            width = std::max(width, captionWidth(row->label.Caption));
        }
    }
    return width;
}

std::int32_t EditorPage::fill(Section& section, std::int32_t labelWidth)
{
    const std::int32_t editorLeft = kMargin + labelWidth + kGap;
    std::int32_t       needed     = 0;
    std::int32_t       top        = kTitleHeight;
    std::int32_t       usual      = kBoxWidth;
    for (const auto& row : section.rows) {
        usual = std::max(usual, listWidth(*row->editor));
    }
    for (const auto& row : section.rows) {
        row->label.Left        = kMargin;
        row->label.Top         = top + (firstLine(*row->editor) - kTextHeight) / 2;
        row->label.Width       = labelWidth;
        row->label.Height      = kTextHeight;
        const std::int32_t box = boxWidth(*row->editor, usual);
        row->editor->Width     = box + unitWidth(*row->editor) + kSignsWidth;
        row->frame.Left        = editorLeft;
        row->frame.Top         = top;
        // Options and checks are several lines high.
        row->frame.Height = std::max(kRowHeight, row->editor->Height.get());
        // A unit that comes with a value later on finds its room.
        row->frame.Width = box + kUnitRoom + kSignsWidth;
        needed           = std::max(needed, editorLeft + row->frame.Width.get());
        top += row->frame.Height + kRowPitch - kRowHeight;
    }
    section.frame.Height = top + kGap;
    if (section.cmdRead) {
        const std::int32_t date   = captionWidth("00.00.0000 00:00:00 PM");
        const std::int32_t read   = captionWidth(section.lblRead->Caption);
        const std::int32_t button = captionWidth(section.cmdRead->Caption) + kButtonMargin;
        const std::int32_t title  = captionWidth(section.frame.Caption) * 5 / 4;
        needed = std::max(needed, kMargin + title + 4 * kGap + read + date + button);
    }
    return needed + kMargin;
}

void EditorPage::layOut(const PageSpace& space)
{
    mLaidOutFor = space;
    // Room for the bar is always kept, or its coming and going would change what it depends on.
    const std::int32_t width = space.width - space.bar;
    // Sections side by side have one width, so that what belongs together stands in line.
    const std::int32_t labels = labelWidth();
    std::int32_t       needed = 0;
    for (const auto& section : mSections) {
        needed = std::max(needed, fill(*section, labels));
    }
    const std::int32_t columns = std::clamp<std::int32_t>(
        (width - kMargin) / (needed + kMargin), 1,
        std::clamp<std::int32_t>(static_cast<std::int32_t>(mSections.size()), 1, 2));
    // They share the room that is left, up to a measure beyond which labels and values lose touch.
    const std::int32_t share = (width - kMargin) / columns - kMargin;
    needed                   = std::clamp(share, needed, needed * 5 / 4);
    std::vector<std::int32_t> bottoms(static_cast<std::size_t>(columns), kMargin);
    for (const auto& section : mSections) {
        const auto shortest = std::min_element(bottoms.begin(), bottoms.end());
        section->frame.Left =
            kMargin + static_cast<std::int32_t>(shortest - bottoms.begin()) * (needed + kMargin);
        section->frame.Top   = *shortest;
        section->frame.Width = needed;
        *shortest += section->frame.Height + kMargin;
        if (section->cmdRead) {
            auto& button  = *section->cmdRead;
            button.Width  = captionWidth(button.Caption) + kButtonMargin;
            button.Height = kRowHeight;
            button.Left   = needed - kMargin - button.Width;
            button.Top    = kTextTop;
            auto& date    = *section->date;
            date.Width    = captionWidth(date.Caption()) + kGap / 2;
            date.Left     = button.Left - kGap - date.Width;
            date.Top      = kTitleText;
            auto& read    = *section->lblRead;
            read.Width    = captionWidth(read.Caption) + kGap / 2;
            read.Height   = kTextHeight;
            read.Left     = date.Left - kGap / 2 - read.Width;
            read.Top      = kTitleText;
            read.Visible  = !date.Caption().empty();
        }
    }
    Width  = columns * (needed + kMargin) + kMargin;
    Height = *std::max_element(bottoms.begin(), bottoms.end());
}

// --- Host contract ----------------------------------------------------------------------------

void EditorPage::setMode(Section& section, std::int32_t mode)
{
    if (section.cmdRead) {
        section.cmdRead->Enabled = mode == kOnline;
    }
}

void EditorPage::SetMessenger(Messenger* messenger)
{
    Page::SetMessenger(messenger);
    mOnMode.drop();
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            auto own = messenger != nullptr && dynamic_cast<CtrCheckEdit*>(row->editor.get())
                           ? std::make_unique<RowsMessenger>(*messenger, *row->editor)
                           : nullptr;
            if (own) {
                row->editor->SetMessenger(own.get());
            }
            row->messenger = std::move(own);
        }
    }
    if (messenger == nullptr) {
        return;
    }
    const auto follow = [this](std::int32_t mode) {
        for (const auto& section : mSections) {
            setMode(*section, mode);
        }
    };
    mOnMode = messenger->ViewSetCommunicationMode.subscribe(follow);
    follow(messenger->GetCommunicationMode());
}

void EditorPage::Localize(Translator& translator)
{
    ViewBase::Localize(translator);
    for (const auto& section : mSections) {
        section->frame.Caption = translator.Translate(section->title);
    }
    layOut(mLaidOutFor);
}

void EditorPage::SetOfflineData(const IXMLDOMNode& node)
{
    ViewBase::SetOfflineData(node);
    layOut(mLaidOutFor);
}

void EditorPage::takeUnits(const std::function<bool(const std::string& parameter)>& wanted)
{
    const Steps step{GetMessenger(), "EditorPage takeUnits: "};
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            auto* const editor = dynamic_cast<TypedEditor*>(row->editor.get());
            step([&] {
                if (editor != nullptr && editor->IsInitialized() &&
                    editor->messageUnit() != documents::kNoUnit && wanted(row->parameter)) {
                    editor->setOfflineData(editor->dataNode());
                }
            });
        }
    }
}

void EditorPage::SetOnlineData(const IXMLDOMNode& node)
{
    const std::string name = documents::responseAttribute(node, "name");
    const bool        isOwn =
        std::ranges::any_of(mSections, [&](const auto& section) { return section->group == name; });
    if (isOwn || findsItem(node.selectNodes("//comm:item"))) {
        Page::SetOnlineData(node);
    }
}

void EditorPage::RequestFocus()
{
    for (const auto& section : mSections) {
        for (const auto& row : section->rows) {
            for (platform::Widget* widget : row->editor->Widgets()) {
                if (widget->TabStop && widget->acceptsUser()) {
                    widget->focus();
                    return;
                }
            }
        }
    }
}

} // namespace quill::shell
