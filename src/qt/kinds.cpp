#include "qt/kinds.h"

namespace quill::qt {

namespace {

/// A row of the table: makes the adaptor if the model is of the row's kind.
using Make = Adaptor* (*)(Screen&, platform::Widget&, QWidget*);

template <class Kind, Adaptor* (*Maker)(Screen&, Kind&, QWidget*)>
Adaptor* byType(Screen& screen, platform::Widget& model, QWidget* parent)
{
    auto* const kind = dynamic_cast<Kind*>(&model);
    return kind != nullptr ? Maker(screen, *kind, parent) : nullptr;
}

// The first row that fits makes the adaptor, so a kind stands before the kind that it derives
// from.
constexpr Make kKinds[] = {
    byType<CtrTBLaunchedPanel, makePanel>,
    byType<CtrFocusTransfer, makeFocusStop>,
    byType<platform::Label, makeLabel>,
    byType<platform::TextBox, makeTextBox>,
    byType<platform::CommandButton, makeCommandButton>,
    byType<platform::CheckBox, makeCheckBox>,
    byType<platform::OptionButton, makeOptionButton>,
    byType<platform::ComboBox, makeComboBox>,
    byType<platform::DatePicker, makeDatePicker>,
    byType<platform::ListView, makeListView>,
    byType<platform::Grid, makeGrid>,
    byType<platform::Image, makeImage>,
    byType<platform::Frame, makeFrame>,
    byType<platform::Control, makeControl>,
};

} // namespace

Adaptor* makeAdaptor(Screen& screen, platform::Widget& model, QWidget* parent)
{
    for (const Make make : kKinds) {
        if (Adaptor* const adaptor = make(screen, model, parent)) {
            return adaptor;
        }
    }
    return nullptr;
}

} // namespace quill::qt
