#include "platform/combo_box.h"

#include "platform/failure.h"

#include <algorithm>

namespace quill::platform {

ComboBox::ComboBox(const Design& design) : Widget(design)
{
    BackColor = kWindowBackground;
}

ComboBox::ComboBox(Widget& container, const Design& design) : Widget(container, design)
{
    BackColor = kWindowBackground;
}

void ComboBox::visit(PropertyVisitor& visitor)
{
    Widget::visit(visitor);
    visitor.visit("Locked", Locked);
    visitor.visit("Editable", Editable);
    visitor.visit(
        "ListCount", [this] { return PropertyValue{ListCount()}; }, nullptr);
    visitor.visit(
        "ListIndex", [this] { return PropertyValue{ListIndex()}; },
        [this](const PropertyValue& value) { setListIndex(std::get<std::int32_t>(value)); });
    visitor.visit(
        "Text", [this] { return PropertyValue{Text()}; },
        [this](const PropertyValue& value) { setText(std::get<std::string>(value)); });
}

std::int32_t ComboBox::ListCount() const noexcept
{
    return static_cast<std::int32_t>(mList.size());
}

void ComboBox::setListIndex(std::int32_t index)
{
    if (index < -1 || index >= ListCount()) {
        throw failure(kInvalidCall);
    }
    if (index != mListIndex || !mTyped.empty()) {
        mListIndex = index;
        mTyped.clear();
        notify({});
    }
}

std::string ComboBox::Text() const
{
    return mListIndex >= 0 ? mList[static_cast<std::size_t>(mListIndex)] : mTyped;
}

void ComboBox::setText(const std::string& text)
{
    const auto found = std::find(mList.begin(), mList.end(), text);
    if (found != mList.end()) {
        setListIndex(static_cast<std::int32_t>(found - mList.begin()));
    } else if (Editable) {
        mListIndex = -1;
        mTyped     = text;
        notify({});
    } else {
        throw failure(kInvalidCall);
    }
}

void ComboBox::Clear()
{
    mList.clear();
    mItemData.clear();
    mTyped.clear();
    mListIndex = -1;
    notify({WidgetChange::What::reset});
}

void ComboBox::AddItem(const std::string& text, std::int32_t itemData)
{
    mList.push_back(text);
    mItemData.push_back(itemData);
    const int row = ListCount() - 1;
    notify({WidgetChange::What::rowsInserted, nullptr, row, row});
}

void ComboBox::setItemData(std::int32_t index, std::int32_t itemData)
{
    if (index < 0 || index >= ListCount()) {
        throw failure(kSubscriptOutOfRange);
    }
    mItemData[static_cast<std::size_t>(index)] = itemData;
    notify({WidgetChange::What::rowsChanged, nullptr, index, index});
}

UserDoor ComboBox::choose(std::int32_t index)
{
    if (!acceptsUser() || Locked || index < 0 || index >= ListCount()) {
        return UserDoor::refused;
    }
    setListIndex(index);
    Click.raise();
    return UserDoor::done;
}

UserDoor ComboBox::type(const std::string& text)
{
    if (!acceptsUser() || Locked || !Editable) {
        return UserDoor::refused;
    }
    setText(text);
    Change.raise();
    return UserDoor::done;
}

} // namespace quill::platform
