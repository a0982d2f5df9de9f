#pragma once

#include "platform/event.h"
#include "platform/keys.h"
#include "platform/property.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quill::platform {

class Control;
class Widget;

/// What was laid out at design time. Lengths are in twips (1/1440 inch, 15 to a pixel at 96 dpi).
struct Design {
    std::string  Name    = {};
    int          Index   = -1; ///< place in a control array, -1 for a widget that is no element
    std::string  Tag     = {};
    std::string  Caption = {}; ///< caption or text, for the kinds that have one
    std::int32_t Left    = 0;
    std::int32_t Top     = 0;
    std::int32_t Width   = 0;
    std::int32_t Height  = 0;
    bool         Visible = true;
    bool         Enabled = true;
};

/// What changed in a widget: one property, or a range of rows (0-based, `last` included) of a
/// widget that holds many, all of it or one column only. `form`: a widget was added to this
/// control's form; it is still under construction and must not be touched yet. `destroyed`: the
/// last word of a dying widget, of which only the address is left.
struct WidgetChange {
    enum class What { property, rowsChanged, rowsInserted, rowsRemoved, reset, form, destroyed };
    What        what     = What::property;
    const void* property = nullptr;
    int         first    = 0;
    int         last     = 0;
    int         column   = -1; ///< 0-based; -1 for all columns
};

/// Answer of the user's door: a disabled, invisible or locked widget refuses.
enum class UserDoor { done, refused };

using WidgetList = std::vector<Widget*>;

/// A widget is a model: state with events, no painting and no toolkit. The control's logic writes
/// it, a test reads it, a renderer shows it. Assigning a property is the program's door; the verbs
/// (`press`, `focus`, and those of each kind) are the user's.
///
/// A widget lies in a container (a frame or the control itself) and is listed by the control that
/// owns it, in the order of construction, until it dies. Neither copied nor moved.
class Widget {
public:
    explicit Widget(const Design& design);
    Widget(Widget& container, const Design& design);
    virtual ~Widget();
    Widget(const Widget&)            = delete;
    Widget& operator=(const Widget&) = delete;

    // What changes while data comes in stands together: a response touches thousands of widgets,
    // and memory is what it then costs.
    Property<bool>  Visible;
    Property<bool>  Enabled;
    Property<Color> ForeColor;
    Property<Color> BackColor;
    /// Raised after every change of state, for whoever shows the widget.
    mutable Event<const WidgetChange&> Changed;

    Property<bool>         TabStop;
    Property<std::int32_t> Left;
    Property<std::int32_t> Top;
    Property<std::int32_t> Width;
    Property<std::int32_t> Height;
    /// Place among the widgets of the same container, 0 in front.
    Property<std::int32_t> ZPosition;
    Property<std::string>  Tag;
    Property<std::string>  ToolTipText;

    const int         Index;
    const std::string Name;

    Event<>          GotFocus;
    Event<>          LostFocus;
    Event<KeyPress&> KeyDown;
    Event<KeyPress&> KeyUp;

    /// The kind, as the view dispatch and the probe name it ("Label", "CtrTextEdit").
    [[nodiscard]] virtual const char* TypeName() const = 0;
    /// The frame or control that holds this widget; nothing for one that stands alone.
    [[nodiscard]] Widget* Container() const noexcept { return mContainer; }
    /// The control whose form this widget is on; nothing for one that stands alone.
    [[nodiscard]] Control* Owner() const noexcept { return mOwner; }
    /// Whether this widget is `other` or lies in it, however deep.
    [[nodiscard]] bool isWithin(const Widget& other) const noexcept;
    /// Visible and enabled, and so are all that hold it.
    [[nodiscard]] bool acceptsUser() const noexcept;
    /// Visible, and so are all that hold it.
    [[nodiscard]] bool isShown() const noexcept;

    /// Whether the keyboard focus is on this widget or inside it.
    [[nodiscard]] bool HasFocus() const noexcept;
    /// Program's door: moves the focus here. On a widget that cannot take it a failure 5.
    void SetFocus();
    /// Program's door: brings the widget in front of the others in its container.
    void ZOrder();

    /// User's door: moves the focus here; whatever had it loses it, with its event.
    UserDoor focus();
    /// User's door: takes the focus away, to nowhere.
    UserDoor blur();
    /// User's door: a key goes down and comes up. It starts at this widget and climbs through its
    /// containers until a handler takes it.
    virtual UserDoor press(int code, int shift = kNoShift);

    /// Shows every property by name.
    virtual void visit(PropertyVisitor& visitor);
    /// Called after a property has changed; an override ends with the call of this one.
    virtual void propertyChanged(const void* property);

    /// The widget that has the focus, if any. There is one user-interface thread.
    [[nodiscard]] static Widget* focused() noexcept;

protected:
    /// The widget that takes the focus when this one is asked to: this one.
    [[nodiscard]] virtual Widget* focusTarget() { return this; }
    /// Whether a form that is asked to take the focus may hand it to this widget.
    [[nodiscard]] virtual bool isTabStop() const { return TabStop && acceptsUser(); }
    void                       notify(const WidgetChange& change) const { Changed.raise(change); }

private:
    friend class Control;
    static void moveFocus(Widget* to);

    Widget*  mContainer = nullptr;
    Control* mOwner     = nullptr;
    int      mHeld      = 0; ///< how many widgets have this one as their container
};

/// A widget with a form of its own: the class of every `Ctr...` and of a host's page.
class Control : public Widget {
public:
    explicit Control(const Design& design = {}) : Widget(design) {}
    explicit Control(Widget& container, const Design& design = {}) : Widget(container, design) {}

    ~Control() override;

    [[nodiscard]] const char* TypeName() const override { return "Control"; }

    /// Raised when the control becomes visible, through either door.
    Event<> Show;
    /// Raised when the control stops being visible.
    Event<> Hide;
    /// Raised after `Width` or `Height` has changed.
    Event<> Resize;

    /// The widgets on this form in form order: flat, those inside frames included, the insides of
    /// child controls not.
    [[nodiscard]] const WidgetList& Widgets() const noexcept { return mWidgets; }

    /// The host shows the control. `Show` is raised also when it was visible before.
    UserDoor show();
    /// The host hides the control.
    UserDoor hide();
    /// User's door: a new size in twips.
    UserDoor resize(std::int32_t width, std::int32_t height);

    void propertyChanged(const void* property) override;

protected:
    /// The first widget of the form that the user can reach by Tab; the control itself where there
    /// is none.
    [[nodiscard]] Widget* focusTarget() override;

private:
    friend class Widget;
    WidgetList mWidgets;
};

} // namespace quill::platform
