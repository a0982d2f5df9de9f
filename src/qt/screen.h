#pragma once

#include "platform/widget.h"
#include "qt/adaptor.h"
#include "qt/view.h"

#include <QPointer>

#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace quill::qt {

/// All adaptors of one view, and what concerns them together: which widgets there are, when they
/// are brought up to date, where they stand, who has the focus and what they are called.
class Screen {
public:
    /// `area` is the Qt widget that the control is shown on.
    Screen(platform::Control& control, QWidget& area);
    ~Screen();
    Screen(const Screen&)            = delete;
    Screen& operator=(const Screen&) = delete;

    /// The adaptor of a widget, nothing for one that is not shown here.
    [[nodiscard]] Adaptor* find(const platform::Widget& widget) const;
    /// The adaptor of the control itself, nothing when it has died.
    [[nodiscard]] Adaptor* root() const { return mRoot; }

    /// Something has changed in a model; with `moves` the layout around it has too.
    void touch(Adaptor& adaptor, bool moves);
    /// A widget came to some form.
    void formChanged();
    /// A widget dies: nothing but its address is left. Its adaptor has been retired.
    void forget(const platform::Widget& dying);
    /// The model's focus has moved to a widget of this screen.
    void focusMoved();
    /// Everything looks different now, such as with another palette or font.
    void touchAll();

    void flush();

    void setLabel(const platform::Widget& widget, const QString& label);
    void setWords(const StateWords& words);

    [[nodiscard]] const QPalette& palette() const { return mArea.palette(); }
    /// The area that the laid out widgets take up.
    [[nodiscard]] QRect contentsRect() const { return mContents; }

private:
    void                  schedule();
    void                  build();
    void                  buildForm(platform::Control& control, std::vector<Adaptor*>& inOrder);
    void                  removeGone();
    void                  orderTabs(const std::vector<Adaptor*>& inOrder);
    void                  updateDirty();
    void                  arrangeDirty();
    void                  arrange(Adaptor& container);
    void                  stack(const Adaptor& container);
    void                  showFocus();
    void                  keepFocus(QWidget* before);
    void                  describeChildren(const Adaptor& container);
    [[nodiscard]] QString labelFor(const Adaptor& adaptor) const;
    [[nodiscard]] QString labelBeside(const Adaptor& container, const Adaptor& adaptor) const;

    QWidget&                                              mArea;
    platform::Control*                                    mControl;
    Adaptor*                                              mRoot = nullptr;
    std::unordered_map<const platform::Widget*, Adaptor*> mAdaptors;
    std::unordered_map<const platform::Widget*, QString>  mLabels;
    std::vector<QPointer<QWidget>>                        mGone;
    std::vector<const platform::Widget*>                  mDirty;
    std::unordered_set<const platform::Widget*>           mIsDirty;
    /// Containers with a changed layout: true where a child of theirs changed itself, false where
    /// only something deeper did.
    std::unordered_map<const platform::Widget*, bool> mMoved;
    StateWords                                        mWords;
    QRect                                             mContents;
    /// Where the focus was when its widget was disabled, and where Qt took it then.
    struct Barred {
        QPointer<QWidget> home;
        QPointer<QWidget> refuge;
    };
    std::optional<Barred> mBarred;
    bool                  mFormChanged = true;
    bool                  mFocusMoved  = true;
    bool                  mScheduled   = false;
    bool                  mFlushing    = false;
    /// Receives the scheduled flush and dies with the screen.
    QObject mTurn;
};

} // namespace quill::qt
