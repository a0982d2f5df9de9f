#pragma once

#include "framework/page_view.h"
#include "platform/grid.h"
#include "platform/label.h"
#include "platform/pictures.h"
#include "status/IQornStatusClass.h"
#include "status/row_descriptions.h"
#include "status/row_tables.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quill {

/// What the status views have in common: a tree of branches with the device's conditions under
/// them, each with an icon that tells how serious it is at the moment, and the worst of all as the
/// combined status of the device.
///
/// The tree comes from the device type information, `//deviceStatus`: its children are branches,
/// their children conditions. Row numbers count from 1, the row indices of the tables from 0. The
/// key of an image is at the same time a class of the classification in force.
class StatusTreeView : public PageView {
public:
    platform::Frame frmViews{*this, {.Name = "frmViews", .Index = 0, .Tag = "deviceStatus"}};
    /// The tree: translated text and icon in column 1.
    platform::Grid scgStatus{frmViews, {.Name = "scgStatus"}};
    /// The same rows with the untranslated name, which is the key for everything else.
    platform::Grid      scgStatusKey{frmViews, {.Name = "scgStatusKey", .Visible = false}};
    platform::ImageList imlStatusIcons{*this, {.Name = "imlStatusIcons"}};

    // ILocalizable
    /// The texts of the rows and the captions of the frames. A row without a translation shows its
    /// key.
    void Localize(Translator& translator) override;
    // IQornDataUser
    /// A response with an error that carries this view's `Tag` in its name: the rows that it names,
    /// or all of them, are unknown from now on.
    void SetErrorData(const IXMLDOMNode& node) override;
    // IQornView
    void RequestFocus() override;

    /// The worst class of all rows, as the host was last to be told.
    [[nodiscard]] const std::string& CombinedStatus() const noexcept { return mstrCombinedStatus; }
    /// A status that differs from the last one is told to the host.
    void setCombinedStatus(const std::string& status);
    /// Without effect: all branches are shown. Part of the views' common interface.
    void ShowNode(const std::string& nodeTag, bool isShown);

    /// The current image of each row, by row index.
    [[nodiscard]] const std::vector<std::string>& images() const noexcept { return mastrImages; }
    /// The highest row index, -1 while there is no tree.
    [[nodiscard]] int lastRow() const noexcept { return miLastRow; }
    /// "notRead", "sync", "syncError" or "reSync".
    [[nodiscard]] const std::string& syncState() const noexcept { return mstrSyncState; }

protected:
    StatusTreeView(const char* className, const platform::Design& design);
    StatusTreeView(const char* className, platform::Widget& container,
                   const platform::Design& design);

    // --- Outlets for failures -----------------------------------------------------------------

    /// To the host's log: class name, blank, `place`, number, ": " and description.
    [[nodiscard]] Steps logSteps(std::int16_t category, const std::string& place);
    /// For what goes wrong while a response runs over the rows.
    [[nodiscard]] Steps passSteps();
    /// Without a host, a layout that fails has nobody to tell.
    [[nodiscard]] Steps debugSteps(const char*) const override { return silentSteps(); }
    void                log(const Steps& step, std::int16_t category, const std::string& text);

    // --- Rows ---------------------------------------------------------------------------------

    [[nodiscard]] std::string&       imageAt(int index) { return entryAt(mastrImages, index); }
    [[nodiscard]] const std::string& keyAt(int index) const
    {
        return scgStatusKey.cell(index + 1, 1).Text;
    }
    [[nodiscard]] bool hasChildren(int index) const { return scgStatus.RowHasChildren(index + 1); }
    /// The icon of a row by its key; failure 5 for a key without an image, and the old icon stays.
    void setIcon(int index, const std::string& key);
    /// The icon, in a step of its own, and what it says in words.
    void showIcon(const Steps& step, int index, const std::string& key, ConditionState state);
    /// The icon of every row; the images stay.
    void showIconOfAll(const Steps& step, const std::string& key);

    /// The classification in force; failure 91 while there is none.
    [[nodiscard]] virtual IQornStatusClass& statusClass() = 0;
    /// Whether the user is at work on the icon of this row, so that data must leave it alone.
    [[nodiscard]] virtual bool isIconInUse(int /*index*/) { return false; }
    /// The host has been told a new combined status.
    virtual void combinedStatusChanged() {}
    virtual void translateRows(const Steps& step, Translator& translator);
    /// Lays the tree out.
    void arrange() override;

    // --- The tree -----------------------------------------------------------------------------

    /// What a row begins with; no icon where the key is empty.
    struct FreshRow {
        std::string icon;
        std::string image;
    };
    /// Empties the twin grids and gives them their form.
    void setUpGrids();
    /// The `deviceStatus` element of the device type information.
    [[nodiscard]] static IXMLDOMNode treeIn(const Steps& step, const IXMLDOMDocument& document);
    /// Adds the rows of a `deviceStatus` element.
    void loadRows(const Steps& step, const IXMLDOMNode& deviceStatus, const FreshRow& fresh);
    /// The tables beside the images: entries `first` to `last` are new.
    virtual void growTables(const Steps& /*step*/, int /*first*/, int /*last*/) {}
    virtual void cutTables(const Steps& /*step*/, int /*last*/) {}
    /// The classes of a condition are to be read, before its row is there.
    virtual void readClasses(const Steps& step, const IXMLDOMNode& status) = 0;
    /// A condition has got its row, numbered from 1.
    virtual void readMask(const Steps& step, int row, const IXMLDOMNode& status) = 0;

    // --- A response ---------------------------------------------------------------------------

    /// One walk of a response over the rows.
    struct Pass {
        const Steps& step;
        Steps        branchStep; ///< for what concerns the branches
        std::string  notRead;    ///< the image that a branch begins with
        std::string  combined;   ///< the worst so far
        /// Row indices of the branches whose image was worked on. Their icons follow at the end, so
        /// that a branch that comes out as before is not painted again.
        std::vector<int> branches = {};
    };
    [[nodiscard]] Pass beginPass(const Steps& step);
    /// The response has nothing on this row: a branch starts anew, a condition keeps its image.
    void passOver(Pass& pass, int index);
    /// The image of a condition goes into its branch and into the combined status.
    void mergeIntoBranch(Pass& pass, int index);
    /// Icons of the branches and combined status.
    void endPass(Pass& pass);

    std::string              mstrSyncState = "notRead";
    std::string              mstrCombinedStatus;
    std::vector<std::string> mastrImages;
    int                      miLastRow = -1;
    RowDescriptions          mDescriptions{scgStatus};

private:
    [[nodiscard]] int addRow(const Steps& step, int parent, const std::string& name,
                             const std::string& icon);
    void loadBranch(const Steps& step, const IXMLDOMNode& branch, const FreshRow& fresh,
                    int& skipped);
    /// Answers the image of the row's branch.
    const std::string& UpdateBranchImage(Pass& pass, int index);
    void               showError(const Steps& step, const IXMLDOMNode& response);
};

} // namespace quill
