#include "editors/CtrTextEdit.h"
#include "framework/default_messenger.h"
#include "framework/documents.h"
#include "framework/view_base.h"

#include <iostream>

/// Feeds a page out of the installed library and edits it, without a screen.
int main()
{
    const auto datafile = quill::documents::openText(
        "<dtm xmlns='x-schema:QVXDatafileSchema.xml'><persistentData><parameters><parameter "
        "name='travel' type='floatVal' value='12.5' unit='mm' decimals='1' minVal='0' maxVal='60' "
        "access='readWrite' synchronised='1'/></parameters></persistentData></dtm>");
    quill::DefaultMessenger host;
    quill::ViewBase         page;
    quill::CtrTextEdit      travel{page, {.Tag = "ctr_travel"}};
    page.SetMessenger(&host);
    page.SetOfflineData(datafile);
    travel.txtBox.type("20");
    const auto value = quill::documents::findParameter(datafile, "travel");
    std::cout << quill::documents::attributeText(value, "value") << '\n';
    return quill::documents::attributeText(value, "value") == "20" ? 0 : 1;
}
