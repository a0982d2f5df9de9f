#pragma once

#include "framework/host_contract.h"
#include "shell/file_operations.h"
#include "shell/text_encoding.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace quill::shell {

/// What a datafile says of a parameter that changes.
struct ParameterContent {
    std::string value;
    std::string unit;
    std::string synchronised; ///< "1" in step with the device, "2" not read, else not in step
};

/// Who wanted something to be read.
enum class ReadBy { user, program };

/// The datafile on disk and the working document that the views edit.
///
/// Editors write whatever they show into the working document, also what the program made them
/// show, and always with the mark "not in step". So the document alone does not say what a user
/// changed. The store does: it knows what each parameter was (as loaded, read from the device or
/// accepted), is told what the program writes (`beginLoading`) and which state an editor reports
/// (`setParameterState`), and works out from that what a save writes.
///
/// A failed operation throws a `Failure` whose description is a translation key with a parameter
/// ("shell_errNoFolder#/path") that tells the user what to do. The store is then as before.
class DatafileStore {
public:
    /// The operations must outlive the store.
    explicit DatafileStore(FileOperations& operations = FileOperations::system());
    ~DatafileStore();

    /// Opens a file; views must let go of the old document.
    void load(const std::string& path);
    /// Opens a datafile that is no file yet.
    void loadBytes(const std::string& bytes);

    [[nodiscard]] bool isOpen() const { return static_cast<bool>(mDocument); }
    /// Where `save` writes; empty as long as the datafile is no file.
    [[nodiscard]] const std::string& path() const { return mPath; }
    /// The working document for the views.
    [[nodiscard]] const IXMLDOMDocument& document() const { return mDocument; }

    /// Everything that is written until `endLoading` is the program's doing and no edit: an offline
    /// load of a view, a change of units or of the language. Calls nest.
    void beginLoading();
    /// Gives the working document back the values it had.
    void endLoading();

    /// A response that is about to go to the views, and has gone. The time of last read is that of
    /// what the user wanted: a datafile does not change because the program looked.
    void beginResponse(const IXMLDOMNode& response, ReadBy who = ReadBy::user);
    void endResponse();

    /// What an editor reported by `SetParameterState`; names of no parameter are ignored.
    void setParameterState(const std::string& parameter, const std::string& state);
    /// Items of a `communicationRequest` that goes to the device. A view that writes into its nodes
    /// without reporting a state means what it sends: it stays there until the device has answered
    /// with what it took, also when it refuses.
    void keepSent(const IXMLDOMNode& request);
    /// Whether the device has not taken something of that yet.
    [[nodiscard]] bool hasSent() const;
    /// The user accepted these items of a `communicationRequest` while offline: they are the
    /// parameters' values from now on, not in step. The views must load the document again.
    void accept(const IXMLDOMNode& request);

    /// The datafile as a save would write it: the very bytes that were read, but for the attributes
    /// that changed.
    [[nodiscard]] std::string bytes() const;
    /// Whether a save would write something else than the file holds, or an edit is not correct and
    /// would be lost.
    [[nodiscard]] bool hasUnsavedChanges() const;
    /// Number of parameters that an editor reports as edited, correct or not.
    [[nodiscard]] std::size_t editCount() const;
    /// Whether a parameter holds what a user has typed or chosen, correct or not, and not what was
    /// loaded, read or accepted.
    [[nodiscard]] bool isEdited(const std::string& parameter) const;
    /// What a save would write of a parameter. Failure 5 if there is none of this name.
    [[nodiscard]] ParameterContent content(const std::string& parameter) const;

    /// Writes beside the file, syncs, and takes the file's place: at any moment either the old or
    /// the new datafile is there, whole.
    void save() { save(mPath); }
    void save(const std::string& path);

private:
    /// What the store knows of a parameter besides the working document.
    struct Parameter {
        enum class Edit { none, correct, error, sent };

        IXMLDOMNode node; ///< in the working document
        /// What it was before any edit: as loaded, as read, as accepted.
        ParameterContent settled;
        /// How an editor wrote that when it was made to show it: a number may come back with more
        /// decimals, or after the way through another unit.
        std::optional<ParameterContent> echo;
        ParameterContent                beforeLoading;
        Edit                            edit = Edit::none;

        /// Whether the working document holds what a user wants there.
        [[nodiscard]] bool isEdited() const;
        /// From now on this is what it was before any edit.
        void settle(const ParameterContent& content);
    };

    void                           open(const std::string& bytes, const std::string& path);
    [[nodiscard]] ParameterContent toSave(const Parameter& parameter) const;
    [[nodiscard]] std::string      patchedText() const;
    [[nodiscard]] Parameter*       find(const std::string& name);
    void                           settle();
    void take(Parameter& parameter, const IXMLDOMNode& item, const std::string& mark);

    FileOperations&                  mOperations;
    std::string                      mPath;
    std::string                      mBytes; ///< as they are on disk
    TextEncoding                     mEncoding;
    IXMLDOMDocument                  mDocument;
    std::map<std::string, Parameter> mParameters;
    int                              mLoading = 0;
    IXMLDOMNode                      mResponse; ///< the one that the views are taking
    ReadBy                           mReadBy = ReadBy::user;
    std::set<std::string>            mReported; ///< whose editors have told what they made of it
};

/// What is written while it lives is the program's doing and no edit (see `beginLoading`).
class Loading {
public:
    explicit Loading(DatafileStore& store) : mStore(store) { mStore.beginLoading(); }
    ~Loading() { mStore.endLoading(); }
    Loading(const Loading&)            = delete;
    Loading& operator=(const Loading&) = delete;

private:
    DatafileStore& mStore;
};

} // namespace quill::shell
