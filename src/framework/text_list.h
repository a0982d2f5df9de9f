#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

/// Texts by place, from 0, one behind the other in one piece of memory: a walk over thousands of
/// names is paid for by the memory that they take.
class TextList {
public:
    TextList() = default;
    TextList(std::initializer_list<std::string_view> texts)
    {
        for (const std::string_view text : texts) {
            add(text);
        }
    }

    void add(std::string_view text)
    {
        mText += text;
        mEnds.push_back(static_cast<std::uint32_t>(mText.size()));
    }
    [[nodiscard]] std::size_t      size() const noexcept { return mEnds.size(); }
    [[nodiscard]] std::string_view operator[](std::size_t place) const
    {
        const std::size_t begin = place == 0 ? 0 : mEnds[place - 1];
        return std::string_view{mText}.substr(begin, mEnds[place] - begin);
    }

private:
    std::string                mText;
    std::vector<std::uint32_t> mEnds;
};

} // namespace quill
