#pragma once

#include "framework/host_contract.h"
#include "platform/grid.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace quill {

/// What is known of a condition beside its class, which the icon alone does not tell: three of
/// them may share one icon.
enum class ConditionState : std::uint8_t {
    none, ///< a branch
    notRead,
    active,
    notActive,
    switchedOff,
    unknown,
};

/// Whether the image of a row is a check mark, which says nothing about its condition.
[[nodiscard]] bool isCheckMark(const std::string& image);

/// Tells in words what the icons of a status tree say, for a person who does not see them: the
/// row's text, the meaning of its icon, the state of its condition ("Supply low, Alarm, active").
///
/// The words are those of the Translator under the keys of the images and under "statusNotRead",
/// "statusActive", "statusNotActive", "statusSwitchedOff" and "statusUnknown". A key without a
/// translation stands for itself. Nothing here is ever reported: the words are beside the screen.
class RowDescriptions {
public:
    /// Describes the rows of `grid`, whose text stands in column 1; it must live as long.
    explicit RowDescriptions(platform::Grid& grid) : mGrid(grid) {}

    /// Takes the words of a language; `imageKeys` are the icons that occur. The rows are described
    /// anew, with their texts as they are now.
    void translate(Translator& translator, const std::vector<std::string>& imageKeys);
    /// Forgets all rows; the words stay.
    void clear() { mShown.clear(); }

    /// The row, from 1, shows this image, empty for none. A row that is told the same again is left
    /// alone.
    void show(int row, const std::string& image, ConditionState state);
    /// The image alone; what is known of the condition stays. Without an image, and with the image
    /// of a check mark, that is not spoken.
    void showImage(int row, const std::string& image);
    /// What is known of the condition alone, for a row that shows something else meanwhile: it is
    /// spoken with the next image.
    void keepState(int row, ConditionState state);

private:
    struct Shown {
        const std::string* image = nullptr; ///< in `mImages`; nothing while nothing was written yet
        ConditionState     state = ConditionState::none;
        bool               spoken = false; ///< whether the state is part of the text
    };

    /// Nothing for a row that cannot be.
    [[nodiscard]] Shown* at(int row);
    void                 put(int row, const std::string& image, ConditionState state, bool spoken);
    void                 write(int row, const Shown& shown);
    [[nodiscard]] std::string word(const std::string& key) const;

    platform::Grid&                              mGrid;
    std::unordered_map<std::string, std::string> mWords;
    std::unordered_set<std::string>              mImages; ///< those that occur, once each
    std::vector<Shown>                           mShown;
};

} // namespace quill
