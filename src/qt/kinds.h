#pragma once

#include "editors/CtrFocusTransfer.h"
#include "editors/CtrTBLaunchedPanel.h"
#include "platform/widgets.h"
#include "qt/adaptor.h"

namespace quill::qt {

// One maker per kind, each in the file of its adaptor; `makeAdaptor` chooses among them.
[[nodiscard]] Adaptor* makeLabel(Screen& screen, platform::Label& model, QWidget* parent);
[[nodiscard]] Adaptor* makeFrame(Screen& screen, platform::Frame& model, QWidget* parent);
[[nodiscard]] Adaptor* makeCommandButton(Screen& screen, platform::CommandButton& model,
                                         QWidget* parent);
[[nodiscard]] Adaptor* makeCheckBox(Screen& screen, platform::CheckBox& model, QWidget* parent);
[[nodiscard]] Adaptor* makeOptionButton(Screen& screen, platform::OptionButton& model,
                                        QWidget* parent);
[[nodiscard]] Adaptor* makeTextBox(Screen& screen, platform::TextBox& model, QWidget* parent);
[[nodiscard]] Adaptor* makeComboBox(Screen& screen, platform::ComboBox& model, QWidget* parent);
[[nodiscard]] Adaptor* makeDatePicker(Screen& screen, platform::DatePicker& model, QWidget* parent);
[[nodiscard]] Adaptor* makeListView(Screen& screen, platform::ListView& model, QWidget* parent);
[[nodiscard]] Adaptor* makeGrid(Screen& screen, platform::Grid& model, QWidget* parent);
[[nodiscard]] Adaptor* makeImage(Screen& screen, platform::Image& model, QWidget* parent);
[[nodiscard]] Adaptor* makeControl(Screen& screen, platform::Control& model, QWidget* parent);
[[nodiscard]] Adaptor* makePanel(Screen& screen, CtrTBLaunchedPanel& model, QWidget* parent);
[[nodiscard]] Adaptor* makeFocusStop(Screen& screen, CtrFocusTransfer& model, QWidget* parent);

} // namespace quill::qt
