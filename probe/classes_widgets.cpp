#include "platform/widgets.h"
#include "probe/binding.h"

namespace quill::probe {

using namespace platform;

namespace {

Reply listItems(const ListView& list)
{
    Reply rows = Reply::array();
    for (const ListItem& item : list.ListItems()) {
        Reply row;
        row["Text"]        = item.Text;
        row["SubItems"]    = item.SubItems;
        row["Key"]         = item.Key;
        row["Tag"]         = item.Tag;
        row["Checked"]     = item.Checked;
        row["Selected"]    = item.Selected;
        row["ToolTipText"] = item.ToolTipText;
        rows.push_back(std::move(row));
    }
    return rows;
}

Reply columnHeaders(const ListView& list)
{
    Reply columns = Reply::array();
    for (const ColumnHeader& header : list.ColumnHeaders()) {
        Reply column;
        column["Text"]  = header.Text;
        column["Tag"]   = header.Tag;
        column["Width"] = header.Width;
        columns.push_back(std::move(column));
    }
    return columns;
}

void setColumnHeaders(ListView& list, const Json& columns)
{
    std::vector<ColumnHeader> headers;
    for (const Json& column : asArray(columns)) {
        const Json* width = find(asObject(column), "Width");
        headers.push_back({textOr(column, "Text", ""), textOr(column, "Tag", ""),
                           width != nullptr ? asInt32(*width) : 0});
    }
    list.setColumnHeaders(std::move(headers));
}

Reply menuItems(const Menu& menu)
{
    Reply items = Reply::array();
    for (const MenuItem& item : menu.Items()) {
        Reply entry;
        entry["Caption"] = item.Caption;
        entry["Enabled"] = item.Enabled;
        items.push_back(std::move(entry));
    }
    return items;
}

} // namespace

void registerWidgets(std::vector<ClassEntry>& classes)
{
    Class<Label>{"Label"}.creatable().into(classes);
    Class<Frame>{"Frame"}.creatable().into(classes);
    Class<TextBox>{"TextBox"}.creatable().into(classes);
    Class<CommandButton>{"CommandButton"}.creatable().into(classes);
    Class<CheckBox>{"CheckBox"}.creatable().into(classes);
    Class<OptionButton>{"OptionButton"}.creatable().into(classes);
    Class<PictureBox>{"PictureBox"}.creatable().into(classes);
    Class<Image>{"Image"}.creatable().into(classes);
    Class<DatePicker>{"DatePicker"}.creatable().into(classes);
    Class<ImageList>{"ImageList"}
        .creatable()
        .property("Keys", &ImageList::Keys)
        .method("Add", &ImageList::Add)
        .into(classes);
    Class<Menu>{"Menu"}
        .creatable()
        .property("Items", [](Menu& menu) { return menuItems(menu); })
        .into(classes);
    Class<ComboBox>{"ComboBox"}
        .creatable()
        .property("List", &ComboBox::List)
        .property("ItemData", &ComboBox::ItemData)
        .method("Clear", &ComboBox::Clear)
        .method("AddItem", &ComboBox::AddItem, {.defaults = {0}, .outs = {}})
        .into(classes);
    Class<ListView>{"ListView"}
        .creatable()
        .property("ListItems", [](ListView& list) { return listItems(list); })
        .property(
            "ColumnHeaders", [](ListView& list) { return columnHeaders(list); }, setColumnHeaders)
        .method("Clear", &ListView::Clear)
        .into(classes);
    Class<Widget>{"Widget"}
        .method("SetFocus", &Widget::SetFocus)
        .method("ZOrder", &Widget::ZOrder)
        .into(classes);
}

} // namespace quill::probe
