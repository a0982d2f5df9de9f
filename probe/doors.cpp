#include "probe/doors.h"

#include "platform/grid.h"
#include "platform/widgets.h"

#include <map>

namespace quill::probe {

using namespace platform;

namespace {

/// Farthest that a user stretches a control, in twips.
constexpr std::int64_t kMaxLength = 100'000'000;

using Action = UserDoor (*)(Widget& widget, const Json& line);

/// The widget as the kind that an action needs; failure 438 for another kind.
template <class Kind>
Kind& as(Widget& widget)
{
    if (auto* kind = dynamic_cast<Kind*>(&widget)) {
        return *kind;
    }
    throw Failure{kNotSupportedByObject,
                  std::string{widget.TypeName()} + " does not support this action"};
}

UserDoor type(Widget& widget, const Json& line)
{
    const std::string text = textField(line, "text");
    if (auto* combo = dynamic_cast<ComboBox*>(&widget)) {
        return combo->type(text);
    }
    return as<TextBox>(widget).type(text);
}

UserDoor click(Widget& widget, const Json& line)
{
    if (auto* button = dynamic_cast<ButtonBase*>(&widget)) {
        return button->click();
    }
    if (auto* label = dynamic_cast<Label*>(&widget)) {
        return label->click();
    }
    if (auto* image = dynamic_cast<Image*>(&widget)) {
        return image->click();
    }
    return as<Menu>(widget).click(int32Field(line, "index"));
}

UserDoor choose(Widget& widget, const Json& line)
{
    return as<ComboBox>(widget).choose(int32Field(line, "index"));
}

UserDoor check(Widget& widget, const Json& line)
{
    return as<ListView>(widget).check(int32Field(line, "row"), asBool(field(line, "checked")));
}

UserDoor select(Widget& widget, const Json& line)
{
    std::vector<int> rows;
    for (const Json& row : asArray(field(line, "rows"))) {
        rows.push_back(asInt32(row));
    }
    if (auto* grid = dynamic_cast<Grid*>(&widget)) {
        return grid->select(rows);
    }
    return as<ListView>(widget).select(rows);
}

/// What is typed, and whether it stays so or becomes what the cell holds.
UserDoor edit(Widget& widget, const Json& line)
{
    Grid&       grid     = as<Grid>(widget);
    const int   row      = int32Field(line, "row");
    const int   col      = int32Field(line, "col");
    const bool  isCommit = boolOr(line, "commit", true);
    const Json* value    = find(line, "value");
    if (value == nullptr) {
        const std::string text = textField(line, "text");
        return isCommit ? grid.edit(row, col, text) : grid.typeCell(row, col, text);
    }
    if (find(line, "text") != nullptr) {
        throw invalid("\"text\" or \"value\", not both");
    }
    const std::int32_t number = asInt32(*value);
    return isCommit ? grid.edit(row, col, number) : grid.typeCell(row, col, std::to_string(number));
}

template <UserDoor (Grid::*action)(int, int)>
UserDoor onCell(Widget& widget, const Json& line)
{
    const int row = int32Field(line, "row");
    const int col = int32Field(line, "col");
    return (as<Grid>(widget).*action)(row, col);
}

UserDoor expand(Widget& widget, const Json& line)
{
    const int  row      = int32Field(line, "row");
    const bool expanded = boolOr(line, "expanded", true);
    return as<Grid>(widget).expand(row, expanded);
}

UserDoor press(Widget& widget, const Json& line)
{
    const Json* shift = find(line, "shift");
    return widget.press(int32Field(line, "key"), shift != nullptr ? asInt32(*shift) : kNoShift);
}

UserDoor focus(Widget& widget, const Json&)
{
    return widget.focus();
}

UserDoor blur(Widget& widget, const Json&)
{
    return widget.blur();
}

UserDoor pick(Widget& widget, const Json& line)
{
    return as<DatePicker>(widget).pick(textField(line, "text"));
}

UserDoor resize(Widget& widget, const Json& line)
{
    const auto length = [&line](const char* key) {
        return static_cast<std::int32_t>(asInteger(field(line, key), 0, kMaxLength));
    };
    const auto width  = length("width");
    const auto height = length("height");
    return as<Control>(widget).resize(width, height);
}

UserDoor show(Widget& widget, const Json&)
{
    return as<Control>(widget).show();
}

UserDoor hide(Widget& widget, const Json&)
{
    return as<Control>(widget).hide();
}

} // namespace

UserDoor act(Widget& widget, const std::string& action, const Json& line)
{
    static const std::map<std::string, Action> actions{
        {"type", type},
        {"click", click},
        {"choose", choose},
        {"check", check},
        {"select", select},
        {"press", press},
        {"focus", focus},
        {"blur", blur},
        {"pick", pick},
        {"resize", resize},
        {"show", show},
        {"hide", hide},
        {"edit", edit},
        {"expand", expand},
        {"clickCell", onCell<&Grid::clickCell>},
        {"rightClickCell", onCell<&Grid::rightClickCell>},
        {"hoverCell", onCell<&Grid::hoverCell>},
    };
    const auto found = actions.find(action);
    if (found == actions.end()) {
        throw Failure{kNotSupportedByObject, "there is no action \"" + action + "\""};
    }
    return found->second(widget, line);
}

} // namespace quill::probe
