#include "editors/CtrTextEdit.h"
#include "framework/default_messenger.h"
#include "framework/documents.h"
#include "framework/view_base.h"
#include "qt/qt_toolkit.h"
#include "qt/view.h"
#include <QApplication>
#include <iostream>

struct Host : quill::DefaultMessenger { // answers everything plainly; override what you have
    void SetParameterState(const std::string& name, const std::string& state) override
    {
        std::cout << name << ": " << state << '\n';
    }
};

struct Page : quill::ViewBase { // the frame's Tag is the name that the host hears of
    quill::platform::Frame frmTravel{*this, {.Tag = "travel", .Width = 4000, .Height = 600}};
    quill::CtrTextEdit     travel{frmTravel, {.Tag = "ctr_travel", .Width = 2400, .Height = 315}};
};

int main(int argc, char** argv)
{
    QApplication         app{argc, argv};
    quill::qt::QtToolkit toolkit;
    quill::platform::Toolkit::setCurrent(&toolkit); // before any widget
    const auto datafile = quill::documents::openText(
        "<dtm xmlns='x-schema:QVXDatafileSchema.xml'><persistentData><parameters><parameter "
        "name='travel' type='floatVal' value='12.5' unit='mm' decimals='1' minVal='0' maxVal='60' "
        "access='readWrite' synchronised='1'/></parameters></persistentData></dtm>");
    Host host;
    Page page;
    page.SetMessenger(&host);
    page.SetOfflineData(datafile); // prints "travel: sync"; the editor shows 12.5 mm
    quill::qt::View view{page};
    view.show();
    page.travel.txtBox.type("20"); // what a user does; prints "travel: edited"
    return QCoreApplication::arguments().contains("--once") ? 0 : QApplication::exec();
}
