#pragma once

#include "status/StatusNAMUR.h"
#include "status/StatusSeverity.h"
#include "status/StatusTreeView.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quill {

/// The view of a device's status conditions, in the classification that the user has chosen, or in
/// the only one that the device's definition has.
///
/// The device type information defines the tree; each response brings the conditions' values, "0"
/// for a condition that is not active. Parameters of the datafile whose name begins with
/// "statusMask" switch conditions off, and on some devices move them to another severity: masks
/// with "Info", "Warning" or "Alarm" in their name list the conditions of that severity, and the
/// one without is the on/off mask. See `statusMasks` for how a mask is written.
///
/// The combined status goes to the host, and under severity to a page of the type "VwOnlineDiag" as
/// "QuillStatusChanged".
class CtrStatus : public StatusTreeView {
public:
    explicit CtrStatus(const platform::Design& design = {});
    CtrStatus(platform::Widget& container, const platform::Design& design = {});

    [[nodiscard]] const char* TypeName() const override { return "CtrStatus"; }

    // IQornComponent
    /// Loads the tree from the host's device type information.
    void SetMessenger(Messenger* messenger) override;
    // IQornDataUser
    void SetImportData(const IXMLDOMNode& node) override;
    /// Takes the datafile's status masks.
    void SetOfflineData(const IXMLDOMNode& node) override;
    /// Any response runs over the rows, whatever its name.
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    /// Lets go of the classifications as well.
    void PrepareToRelease() override;

    /// Loads the tree of another definition, a document with `//deviceStatus`, and translates it.
    void UpdateStatusTree(const IXMLDOMDocument& guiInitXml, Translator& translator);

    /// A `StatusClassification`.
    [[nodiscard]] std::int16_t classification() const noexcept { return miClassification; }
    /// The definition allows one classification only.
    [[nodiscard]] bool isClassificationFixed() const noexcept { return mblnFixedClassification; }
    /// The masks by part and class: part + class times count - 1.
    [[nodiscard]] const std::vector<std::string>& masks() const noexcept { return mastrMasks; }
    /// 1 for a row that is switched on, 0 for one that is off, by row index.
    [[nodiscard]] const std::vector<std::int16_t>& enabled() const noexcept { return maiEnabled; }
    /// The place of a row in the masks, -1 for none, by row index.
    [[nodiscard]] const std::vector<std::int16_t>& maskBytes() const noexcept
    {
        return maiMaskByte;
    }
    [[nodiscard]] const std::vector<std::int16_t>& maskBits() const noexcept { return maiMaskBit; }
    /// Digits of a part of the mask.
    [[nodiscard]] std::int16_t maskLength() const noexcept { return miMaskLength; }
    /// Somebody has changed the device's configuration, as the last response told.
    [[nodiscard]] bool hasConfigurationSign() const noexcept { return mblnConfigurationSign; }

protected:
    [[nodiscard]] IQornStatusClass& statusClass() override { return existing(mobjStatusClass); }
    void                            combinedStatusChanged() override;
    void translateRows(const Steps& step, Translator& translator) override;
    void growTables(const Steps& step, int first, int last) override;
    void cutTables(const Steps& step, int last) override;
    void readClasses(const Steps& step, const IXMLDOMNode& status) override;
    void readMask(const Steps& step, int row, const IXMLDOMNode& status) override;

private:
    /// Which part of the mask a parameter holds, and of how many.
    struct MaskPart {
        int part  = 1;
        int count = 1;
    };

    void UserControl_Initialize();
    void mMessenger_ViewReceiveValue(std::string name, const std::string& value);
    void mMessenger_ViewSetCommunicationMode(std::int32_t mode);

    void LoadStatusTree(const IXMLDOMDocument& document);
    /// The definition has one classification only.
    void fixClassification(const Steps& step, std::int16_t only, const std::string& word);
    void readClassification(const Steps& step);
    /// Makes one of the two classifications the one in force.
    void useClass(std::int16_t classification);

    void allocateMasks(const Steps& step, const IXMLDOMNodeList& parameters);
    /// A mask has changed; the name comes back in lower case.
    void                          ChangeMask(std::string& name, const std::string& value);
    [[nodiscard]] static MaskPart partIn(const std::string& name);
    void                          rebuildOnOffMask(const Steps& step, MaskPart place);
    /// Switches the rows of a mask on and off, and moves them to the severity of its class. Part -1
    /// is a mask that holds all parts.
    void SetImage(const std::string& mask, int statusClass, int part);
    void applyMask(const Steps& step, int index, const std::string& mask, int statusClass,
                   int part);
    [[nodiscard]] bool                        HasMask(int index);
    [[nodiscard]] std::optional<std::uint8_t> GetMaskByte(const std::string& mask, int position);

    void showRow(Pass& pass, const IXMLDOMNode& response, int index);
    void forwardConfigurationSign(const Steps& step, const IXMLDOMNode& response);

    /// The one in force: one of the two that follow.
    IQornStatusClass*               mobjStatusClass = nullptr;
    std::unique_ptr<StatusSeverity> mobjSeverity;
    std::unique_ptr<StatusNAMUR>    mobjNAMUR;
    std::int16_t                    miClassification        = kClassSeverity;
    bool                            mblnFixedClassification = false;
    bool                            mblnConfigurationSign   = false;
    std::int16_t                    miMaskLength            = 0; ///< digits of a part
    std::vector<std::string>        mastrMasks;
    std::vector<std::int16_t>       maiMaskBit;  ///< -1 for none
    std::vector<std::int16_t>       maiMaskByte; ///< -1 for none
    std::vector<std::int16_t>       maiEnabled;

    platform::Subscription mOnMode;
    platform::Subscription mOnValue;
};

} // namespace quill
