#pragma once

#include "platform/combo_box.h"
#include "platform/grid.h"
#include "platform/list_view.h"
#include "platform/pictures.h"
#include "platform/widget.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <variant>

namespace quill::test {

/// What a control shows, by widget: path to all its properties in one text. Rows of grids and lists
/// stand apart, so that two dumps tell how many differ.
class WidgetDump : private platform::PropertyVisitor {
public:
    enum class Places { with, without };

    /// Without places: no lengths, as they follow the width of texts, nor what hangs on them.
    explicit WidgetDump(platform::Control& control, Places places = Places::without)
        : mPlaces(places)
    {
        add(control, "");
    }

    [[nodiscard]] const std::map<std::string, std::string>& lines() const { return mLines; }

    /// The paths of what differs from another dump, or is in one of them only.
    [[nodiscard]] std::set<std::string> differences(const WidgetDump& other) const
    {
        std::set<std::string> different;
        const auto            compare = [&](const auto& one, const auto& two) {
            for (const auto& [path, text] : one) {
                const auto found = two.find(path);
                if (found == two.end() || found->second != text) {
                    different.insert(path);
                }
            }
        };
        compare(mLines, other.mLines);
        compare(other.mLines, mLines);
        return different;
    }

private:
    void add(platform::Widget& widget, const std::string& container)
    {
        const std::string path = container + "." + widget.Name +
                                 (widget.Index < 0 ? "" : "(" + std::to_string(widget.Index) + ")");
        mText.str({});
        widget.visit(*this);
        mLines[path] = mText.str();
        if (auto* const grid = dynamic_cast<platform::Grid*>(&widget)) {
            addRows(*grid, path);
        } else if (auto* const list = dynamic_cast<platform::ListView*>(&widget)) {
            addRows(*list, path);
        } else if (auto* const combo = dynamic_cast<platform::ComboBox*>(&widget)) {
            for (const std::string& entry : combo->List()) {
                mLines[path] += "entry " + entry + "; ";
            }
        } else if (auto* const control = dynamic_cast<platform::Control*>(&widget)) {
            for (platform::Widget* const inside : control->Widgets()) {
                add(*inside, path);
            }
        }
    }
    void addRows(const platform::Grid& grid, const std::string& path)
    {
        for (int row = 1; row <= grid.RowCount(); ++row) {
            std::string text = grid.RowDescription(row) + "; ";
            for (int col = 1; col <= grid.ColCount(); ++col) {
                const auto& cell = grid.cell(row, col);
                text += cell.Text + "; " + grid.CellIcon(row, col) + "; " +
                        (cell.Value ? std::to_string(*cell.Value) : "") + "; ";
            }
            mLines[path + "[" + std::to_string(row) + "]"] = text;
        }
    }
    void addRows(const platform::ListView& list, const std::string& path)
    {
        // Known by what they say: a row that is missing costs one, although all behind it move up.
        for (int row = 1; row <= list.Count(); ++row) {
            constexpr std::size_t kSaying = 2;
            std::string           text    = list.Item(row).Text;
            for (std::size_t i = 0; i < std::min(kSaying, list.Item(row).SubItems.size()); ++i) {
                text += "; " + list.Item(row).SubItems[i];
            }
            mLines[path + "[" + text + "]"] += "once; ";
        }
    }

    template <class T>
    void tell(const std::string& name, const T& value)
    {
        static const std::set<std::string> lengths = {"Left", "Top", "Width", "Height",
                                                      "ToolTipText"};
        if (mPlaces == Places::with || !lengths.contains(name)) {
            mText << name << "=" << value << "; ";
        }
    }
    void visit(const char* name, platform::Property<bool>& property) override
    {
        tell(name, property.get());
    }
    void visit(const char* name, platform::Property<std::int32_t>& property) override
    {
        tell(name, property.get());
    }
    void visit(const char* name, platform::Property<platform::Color>& property) override
    {
        tell(name, property.get());
    }
    void visit(const char* name, platform::Property<double>& property) override
    {
        tell(name, property.get());
    }
    void visit(const char* name, platform::Property<std::string>& property) override
    {
        tell(name, property.get());
    }
    void visit(const char* name, const Getter& get, const Setter&) override
    {
        std::visit([&](const auto& value) { tell(name, value); }, get());
    }

    Places                             mPlaces;
    std::ostringstream                 mText;
    std::map<std::string, std::string> mLines;
};

} // namespace quill::test
