#include "status/row_descriptions.h"

#include "framework/modTools.h"
#include "framework/steps.h"

#include <array>

namespace quill {

namespace {

/// In the order of `ConditionState`.
constexpr std::array<const char*, 6> kStateKeys{
    "", "statusNotRead", "statusActive", "statusNotActive", "statusSwitchedOff", "statusUnknown"};

constexpr const char* kSeparator = ", ";

} // namespace

bool isCheckMark(const std::string& image)
{
    return image.starts_with("check");
}

void RowDescriptions::translate(Translator& translator, const std::vector<std::string>& imageKeys)
{
    const Steps unheard = silentSteps();
    mWords.clear();
    const auto take = [&](const std::string& key) {
        const std::string text = unheard.text([&] { return translator.Translate(key); });
        if (!text.empty() && modTools::IsNotErrorText(text)) {
            mWords.emplace(key, text);
        }
    };
    for (const std::string& key : imageKeys) {
        take(key);
    }
    for (const char* key : kStateKeys) {
        if (*key != '\0') {
            take(key);
        }
    }
    int row = 0;
    for (const Shown& shown : mShown) {
        ++row;
        if (shown.image != nullptr) {
            write(row, shown);
        }
    }
}

void RowDescriptions::show(int row, const std::string& image, ConditionState state)
{
    put(row, image, state, state != ConditionState::none);
}

void RowDescriptions::showImage(int row, const std::string& image)
{
    if (const Shown* shown = at(row)) {
        const bool speaks = !image.empty() && !isCheckMark(image);
        put(row, image, shown->state, speaks && shown->state != ConditionState::none);
    }
}

void RowDescriptions::keepState(int row, ConditionState state)
{
    if (Shown* const shown = at(row)) {
        shown->state = state;
    }
}

RowDescriptions::Shown* RowDescriptions::at(int row)
{
    if (row < 1 || row > mGrid.RowCount()) {
        return nullptr;
    }
    const auto place = static_cast<std::size_t>(row) - 1;
    if (place >= mShown.size()) {
        mShown.resize(place + 1);
    }
    return &mShown[place];
}

void RowDescriptions::put(int row, const std::string& image, ConditionState state, bool spoken)
{
    Shown* const shown = at(row);
    if (shown == nullptr || (shown->image != nullptr && *shown->image == image &&
                             shown->state == state && shown->spoken == spoken)) {
        return;
    }
    *shown = {&*mImages.insert(image).first, state, spoken};
    write(row, *shown);
}

void RowDescriptions::write(int row, const Shown& shown)
{
    silentSteps()([&] {
        std::string       text  = mGrid.cell(row, 1).Text;
        const std::string image = shown.image->empty() ? std::string{} : word(*shown.image);
        if (!image.empty()) {
            text += kSeparator + image;
        }
        if (shown.spoken) {
            const std::string state = word(kStateKeys[static_cast<std::size_t>(shown.state)]);
            // "Unknown, unknown" says no more than once.
            if (state != image) {
                text += kSeparator + state;
            }
        }
        mGrid.setRowDescription(row, text);
    });
}

std::string RowDescriptions::word(const std::string& key) const
{
    const auto found = mWords.find(key);
    return found == mWords.end() ? key : found->second;
}

} // namespace quill
