#include "records/event_log_rows.h"

#include <utility>

namespace quill::eventLog {

std::string column(const platform::ListItem& item, Column which)
{
    const auto place = static_cast<std::size_t>(which);
    return place < item.SubItems.size() ? item.SubItems[place] : std::string{};
}

void setColumn(platform::ListItem& item, Column which, std::string text)
{
    if (item.SubItems.size() < kSubItems) {
        item.SubItems.resize(kSubItems);
    }
    item.SubItems[static_cast<std::size_t>(which)] = std::move(text);
}

std::string rowText(int number, int meant)
{
    const std::string text = std::to_string(number);
    return number == meant ? text : text + " <> " + std::to_string(meant);
}

std::string suffix(int index)
{
    return (index < 10 ? "0" : "") + std::to_string(index);
}

std::string clipboardLine(const platform::ListItem& item)
{
    return item.Text + '\t' + column(item, kEvent) + '\t' + column(item, kTime) + '\t' +
           column(item, kDate) + "\r\n";
}

} // namespace quill::eventLog
