#pragma once

#include "framework/documents.h"
#include "framework/editor_contract.h"
#include "framework/steps.h"

#include <string>

namespace quill {

/// Colours that the editors paint with.
namespace editorColors {
constexpr platform::Color kRed  = 255;
constexpr platform::Color kBlue = 0xff0000;
constexpr platform::Color kGrey = 0xe0e0e0;
using platform::kWhite;
} // namespace editorColors

/// What all data editors have in common, however they show that a value is modified: the bond to a
/// parameter of the datafile, and the two state machines whose states the host receives by
/// `SetParameterState`. States are reported under the `Tag` of the editor's container, which is how
/// the host knows parameter from parameter.
class EditorCore : public platform::Control,
                   public IQornComponent,
                   public ILocalizable,
                   public BoundEditor {
public:
    ~EditorCore() override = default;

    /// Whether there is an edit that the device does not have.
    [[nodiscard]] virtual bool Modified() const = 0;
    /// False makes the present value the one that later edits are compared with.
    virtual void setModified(bool modified) = 0;
    /// Sets `Modified` and moves the change state.
    void SetModifiedForward(bool modified);

    /// Whether the box takes anything from the user.
    [[nodiscard]] virtual bool Enabled() const;
    /// Disables or enables the box and paints it; does nothing while the editor is silent because
    /// its parameter cannot be written.
    virtual void setEnabled(bool enabled);

    /// A silent editor books no changes.
    [[nodiscard]] bool Silent() const { return mSilent; }
    void               setSilent(bool silent) { mSilent = silent; }

    [[nodiscard]] std::string ContextTag() const override { return mContextTag; }
    void                      setContextTag(const std::string& tag) override { mContextTag = tag; }
    /// Of all codes "communicationError" says something about any value.
    void handleError(const std::string& code) override;

    /// Whether the editor is bound to a parameter of the datafile.
    [[nodiscard]] bool IsInitialized() const { return static_cast<bool>(mDataNode); }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable: takes the label that messages and bookings carry.
    void Localize(Translator& translator) override;

    // What the host's developer wants to see while he looks for an error.
    [[nodiscard]] const std::string& labelText() const { return mLabelText; }
    [[nodiscard]] const std::string& valueType() const { return mValueType; }
    [[nodiscard]] const std::string& changeState() const { return mChangeState; }
    [[nodiscard]] const std::string& syncState() const { return mSyncState; }
    [[nodiscard]] bool               hasSynced() const { return mHasSynced; }
    [[nodiscard]] const IXMLDOMNode& dataNode() const { return mDataNode; }

protected:
    explicit EditorCore(const platform::Design& design);
    EditorCore(platform::Widget& container, const platform::Design& design);

    /// First word of the places in error reports.
    [[nodiscard]] virtual const char* word() const = 0;
    /// The widget that holds the value.
    [[nodiscard]] virtual platform::Widget&       box()       = 0;
    [[nodiscard]] virtual const platform::Widget& box() const = 0;
    /// A value that lies in several boxes: their number, and each of them.
    [[nodiscard]] virtual std::size_t       boxCount() const { return 1; }
    [[nodiscard]] virtual platform::Widget& boxAt(std::size_t) { return box(); }
    /// An editor whose box is disabled counts as disabled.
    [[nodiscard]] bool isTabStop() const override { return Control::isTabStop() && Enabled(); }
    /// Whether the user is kept from changing the value although the box is enabled.
    [[nodiscard]] virtual bool isLocked() const       = 0;
    virtual void               setLocked(bool locked) = 0;
    /// Colour of the text by the state of the value.
    virtual void paintText() {}
    /// Called with every Messenger that is stored, also with none: the place to take or drop events
    /// beyond the communication mode and the request for changes.
    virtual void messengerChanged(Messenger*) {}
    /// Bars the boxes while editing is barred.
    virtual void ViewSetCommunicationMode(std::int32_t mode);
    virtual void ViewGetChanges(std::int16_t scope) = 0;

    [[nodiscard]] Steps steps(const char* procedure) const
    {
        return {mMessenger, word(), Tag, procedure};
    }
    /// The services of the host; failure 91 while there is no Messenger.
    [[nodiscard]] Messenger& host() const;
    /// Its texts; nothing, with a report where they cannot be had.
    [[nodiscard]] Translator* hostTexts(const Steps& step) const;
    [[nodiscard]] Messenger*  messenger() const { return mMessenger; }

    /// The first data node stays; later ones are ignored.
    void bindTo(const IXMLDOMNode& parameter);
    /// Text of an attribute of a node, empty and reported if it is missing.
    [[nodiscard]] static std::string read(const Steps& step, const IXMLDOMNode& node,
                                          const char* attribute);
    /// Reports a state under the container's `Tag`.
    void reportState(const std::string& state) const;

    /// Moves the change state between "original" and "edited" and reports. Editors whose value can
    /// be wrong know two states more.
    virtual void forwardChanges();
    /// Moves the synchronisation state after a value came, and reports.
    void forwardSyncChanges();
    /// A value came from the device or is in step with it.
    void takeAsSynced();
    /// The device did not answer.
    void takeAsSyncError();
    /// What an error code says of a value that the device can refuse: what stands there then counts
    /// as in step.
    void handleRefusableError(const std::string& code);
    /// Whether `ViewGetChanges` with this scope is meant for this editor.
    [[nodiscard]] bool isAskedFor(std::int16_t scope) const;
    /// Writes `value` and the mark "not in step" into the datafile.
    void writeValue(const Steps& step, const std::string& value);
    /// The item that carries a value; an empty document while `Tag` or `type` is empty.
    [[nodiscard]] IXMLDOMDocument itemOf(const Steps& step, const std::string& type,
                                         const std::string& value,
                                         const std::string& unit = documents::kNoUnit) const;
    /// Lets the user change the value or not; an editor that was not writable once stays silent.
    void setWritable(bool writable);
    /// Writable is what contains "write" in any letter case.
    void takeAccess(const std::string& access);
    /// A parameter that says nothing of its access leaves the editor as it is.
    void takeAccessIfTold(const Steps& step, const IXMLDOMNode& parameter);

    std::string                mContextTag;
    std::string                mLabelText;
    std::string                mValueType;
    std::string                mAccessText;
    std::string                mChangeState = "original";
    std::string                mSyncState   = "notRead";
    IXMLDOMNode                mDataNode;
    documents::ParameterWriter mWriter;
    bool                       mHasSynced = false;
    bool                       mSilent    = false;

private:
    void start();

    Messenger*             mMessenger = nullptr;
    platform::Subscription mOnMode;
    platform::Subscription mOnGetChanges;
};

} // namespace quill
