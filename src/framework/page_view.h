#pragma once

#include "framework/steps.h"
#include "framework/view_base.h"

#include <string>

namespace quill {

/// A view with a form of its own: one or more frames that fill it, white, of which one is in front.
/// The base of the views that come with the library; each tells by its own methods what it does
/// beyond handing on to `modView`.
class PageView : public ViewBase {
public:
    // IQornView
    /// Brings the frame of this name to the front.
    void SetSelectedView(const std::string& name) override;
    /// A view without a reason to stay.
    bool LeaveSelectedView() override { return true; }
    /// Lets go of the Messenger.
    void PrepareToRelease() override;

protected:
    /// `className` names the view in error reports; it must live as long as the view.
    PageView(const char* className, const platform::Design& design);
    PageView(const char* className, platform::Widget& container, const platform::Design& design);

    /// Guards the steps of a procedure, which reports as class name, blank, procedure, ": ".
    [[nodiscard]] virtual Steps steps(const char* procedure);
    /// The same without a Messenger to rely on: "CLASS procedure - Error", number, ": " and
    /// description, to the debug output.
    [[nodiscard]] virtual Steps debugSteps(const char* procedure) const;
    /// The host; failure 91 while there is no Messenger.
    [[nodiscard]] Messenger& host();

    /// White frames. To be called when the form is complete, at the end of the constructor.
    void paintFrames();
    /// Called after every change of size, once the frames fill the view.
    virtual void arrange() {}
    /// Lays the form out for the present size: at each change of it, and once the form is complete.
    virtual void UserControl_Resize();
    /// The frames that lie right on this view.
    [[nodiscard]] platform::WidgetList subPages() const override;

    /// For views whose places in reports do not follow the rule.
    [[nodiscard]] const char* className() const noexcept { return mClassName; }

private:
    const char*            mClassName;
    platform::Subscription mOnResize = Resize.subscribe([this] { UserControl_Resize(); });
};

} // namespace quill
