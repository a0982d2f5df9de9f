#include "platform/text_box.h"
#include "qt/images.h"
#include "qt/qt_toolkit.h"
#include "qt/view.h"

#include <QApplication>
#include <QLineEdit>

#include <iostream>

namespace {

struct Form : quill::platform::Control {
    quill::platform::TextBox txtBox{*this, {.Name = "txtBox", .Width = 1500, .Height = 315}};
};

} // namespace

/// Shows a form out of the installed library.
int main(int argc, char** argv)
{
    QApplication         app{argc, argv};
    quill::qt::QtToolkit toolkit;
    quill::platform::Toolkit::setCurrent(&toolkit);
    Form            form;
    quill::qt::View view{form};
    view.show();
    form.txtBox.type("20");
    view.flush();
    const auto* line = qobject_cast<QLineEdit*>(view.shown(form.txtBox));
    std::cout << (line == nullptr ? "nothing" : line->text().toStdString()) << '\n';
    // The pictures lie in the library.
    const bool pictured = !quill::qt::Images::find("ok").pixmap(16).isNull();
    return line != nullptr && line->text() == "20" && pictured ? 0 : 1;
}
