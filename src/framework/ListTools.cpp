#include "framework/ListTools.h"

namespace quill::ListTools {

namespace {

platform::ListItem itemFor(const ListContainer& row, std::int32_t number)
{
    const std::string  index = std::to_string(number);
    platform::ListItem item;
    item.Text    = row.key;
    item.Key     = "Item_" + index;
    item.Tag     = index;
    item.Checked = row.selected;
    if (row.oldText.empty()) {
        item.SubItems = {"", ""};
    } else {
        item.SubItems = {row.oldText, row.newText};
    }
    return item;
}

/// The list holds exactly the rows, so a new row is one line more and a known one its own line:
/// a thousand bookings, and then a thousand again, rebuild nothing else.
void show(platform::ListView& list, const ListContainer& row, std::int32_t number)
{
    auto item = itemFor(row, number);
    if (number >= list.Count()) {
        list.Add(std::move(item));
        return;
    }
    list.edit(number + 1, [&](platform::ListItem& shown) {
        item.Selected = shown.Selected;
        shown         = std::move(item);
    });
}

} // namespace

void Reset(ListContainers& changes, platform::ListView& list)
{
    changes = ListContainers{};
    list.Clear();
}

void AddChange(ListContainers& changes, platform::ListView& list, const ChangeArguments& change)
{
    const auto known  = changes.numbers.find(change.label);
    const auto number = known != changes.numbers.end()
                            ? known->second
                            : static_cast<std::int32_t>(changes.numbers.size());
    if (number > kLastRow) {
        return;
    }
    changes.numbers.emplace(change.label, number);
    const auto place = static_cast<std::size_t>(number);
    if (place >= changes.rows.size()) {
        changes.rows.resize(place + 1);
    }
    changes.rows[place] = std::make_unique<ListContainer>(ListContainer{
        change.label,
        change.extra,
        change.oldText,
        change.newText,
        change.type,
        change.tag,
        change.contextTag,
        true,
        EditorReference{change.editor},
        !change.oldText.empty(),
    });
    show(list, *changes.rows[place], number);
}

} // namespace quill::ListTools
