#pragma once

#include "framework/host_contract.h"
#include "platform/list_view.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quill {

/// An editor that somebody else owns, or nothing once that editor has died.
class EditorReference {
public:
    EditorReference() = default;
    explicit EditorReference(IQornDataEditor* editor) : mEditor(editor)
    {
        if (editor != nullptr) {
            mLifetime = editor->lifetime();
        }
    }
    [[nodiscard]] IQornDataEditor* get() const { return mLifetime.expired() ? nullptr : mEditor; }

private:
    IQornDataEditor*          mEditor = nullptr;
    std::weak_ptr<const void> mLifetime;
};

/// One pending change.
struct ListContainer {
    std::string     key;     ///< third argument of the event: what the row is known and shown by
    std::string     extra;   ///< fourth argument
    std::string     oldText; ///< fifth argument; empty marks a row without an old value
    std::string     newText; ///< sixth argument
    std::string     type;    ///< seventh argument
    std::string     tag;     ///< second argument
    std::string     requestGroup; ///< eighth argument
    bool            exists = true;
    EditorReference editor;           ///< first argument
    bool            selected = false; ///< goes out with the next download
};

/// The rows of one dialog by number, from 0, and the number that each key has. An empty array has
/// one empty element. The numbers lie with the rows, so that a dialog that dies in between leaves
/// nothing to the next one.
struct ListContainers {
    std::vector<std::unique_ptr<ListContainer>>   rows{1};
    std::unordered_map<std::string, std::int32_t> numbers;
};

/// Keeps the rows of the list of pending changes.
namespace ListTools {

/// A row number above this one takes no change.
constexpr std::int32_t kLastRow = 32000;

/// What is handed to `AddChange`: the arguments of `DialogSetChanges` in their order.
struct ChangeArguments {
    IQornDataEditor* editor = nullptr;
    std::string      tag;
    std::string      label;
    std::string      extra;
    std::string      oldText;
    std::string      newText;
    std::string      type;
    std::string      contextTag;
};

/// Empties the array to one empty element, and the list with it; row numbers start anew.
void Reset(ListContainers& changes, platform::ListView& list);

/// Books a change in its row and shows it: the row that carries the label already, else the next
/// one. A row number above `kLastRow` takes nothing.
///
/// List row n + 1 shows row n: its `Tag` is n, its `Key` "Item_" + n, and its check mark the row's
/// `selected`. Old and new text show only where there is an old text.
void AddChange(ListContainers& changes, platform::ListView& list, const ChangeArguments& change);

} // namespace ListTools

} // namespace quill
