// What holds other widgets: frames, child controls, the backdrop of a dialog; and the focus stop,
// which is a control too.
#include "qt/colors.h"
#include "qt/kinds.h"
#include "qt/screen.h"
#include "qt/text.h"

#include <QGroupBox>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace quill::qt {

namespace {

/// A frame without a caption groups widgets and is not seen itself.
class GroupBox : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (!title().isEmpty()) {
            QGroupBox::paintEvent(event);
        }
    }
};

class FrameAdaptor : public KindAdaptor<platform::Frame, QGroupBox> {
public:
    using KindAdaptor::KindAdaptor;

    void update() override
    {
        Adaptor::update();
        shown()->setTitle(toQt(kind().Caption));
        showColors(QPalette::WindowText, QPalette::Window);
    }
    [[nodiscard]] Fit     fit() const override { return {QSize(0, 0)}; }
    [[nodiscard]] bool    takesFocus() const override { return false; }
    [[nodiscard]] QString ownName() const override { return toQt(kind().Caption); }
};

class ControlAdaptor : public KindAdaptor<platform::Control, QWidget> {
public:
    using KindAdaptor::KindAdaptor;

    void update() override
    {
        Adaptor::update();
        showColors(QPalette::WindowText, QPalette::Window);
    }
    [[nodiscard]] Fit  fit() const override { return {QSize(0, 0)}; }
    [[nodiscard]] bool takesFocus() const override { return false; }
    [[nodiscard]] bool spreads() const override { return true; }
};

/// A grey slide with an edge that is dark on one side and light on the other.
class Backdrop : public QWidget {
public:
    using QWidget::QWidget;

    struct Shades {
        int         start = 0, end = 0, dark = 0, light = 0;
        friend bool operator==(const Shades&, const Shades&) = default;
    };
    void setShades(const Shades& shades)
    {
        if (shades != mShades) {
            mShades = shades;
            QWidget::update();
        }
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const bool dark  = isDark(palette());
        const auto color = [&](int shade) {
            if (!dark) {
                return shownColor(shadeColor(shade), QPalette::Window, palette());
            }
            // The same slide around the ground of the window.
            constexpr int kMiddle = 240;
            constexpr int kLeast  = 60;
            return palette()
                .color(QPalette::Window)
                .lighter(std::max(kLeast, 100 + 2 * (shade - kMiddle)));
        };
        QPainter        painter(this);
        QLinearGradient slide(0, 0, 0, height());
        slide.setColorAt(0, color(mShades.start));
        slide.setColorAt(1, color(mShades.end));
        painter.fillRect(rect(), slide);
        const QRect edge = rect().adjusted(0, 0, -1, -1);
        painter.setPen(color(mShades.light));
        painter.drawLine(edge.topLeft(), edge.topRight());
        painter.drawLine(edge.topLeft(), edge.bottomLeft());
        painter.setPen(color(mShades.dark));
        painter.drawLine(edge.bottomLeft(), edge.bottomRight());
        painter.drawLine(edge.topRight(), edge.bottomRight());
    }

private:
    Shades mShades;
};

class PanelAdaptor : public KindAdaptor<CtrTBLaunchedPanel, Backdrop> {
public:
    using KindAdaptor::KindAdaptor;

    void update() override
    {
        Adaptor::update();
        shown()->setShades(
            {kind().StartShade, kind().EndShade, kind().DarkShade, kind().LightShade});
    }
    [[nodiscard]] Fit  fit() const override { return {QSize(0, 0)}; }
    [[nodiscard]] bool takesFocus() const override { return false; }
    [[nodiscard]] bool isBackdrop() const override { return true; }
};

/// Qt gives the focus to visible widgets only, so the stop is there without painting anything.
class FocusStopAdaptor : public KindAdaptor<CtrFocusTransfer, QWidget> {
public:
    using KindAdaptor::KindAdaptor;

    void place(const QRect& rect) override { Adaptor::place(QRect(rect.topLeft(), fit().natural)); }
    [[nodiscard]] Fit fit() const override { return {QSize(1, 1)}; }
};

} // namespace

Adaptor* makeFrame(Screen& screen, platform::Frame& model, QWidget* parent)
{
    return new FrameAdaptor(screen, model, static_cast<QGroupBox*>(new GroupBox(parent)));
}

Adaptor* makeControl(Screen& screen, platform::Control& model, QWidget* parent)
{
    return new ControlAdaptor(screen, model, new QWidget(parent));
}

Adaptor* makePanel(Screen& screen, CtrTBLaunchedPanel& model, QWidget* parent)
{
    return new PanelAdaptor(screen, model, new Backdrop(parent));
}

Adaptor* makeFocusStop(Screen& screen, CtrFocusTransfer& model, QWidget* parent)
{
    return new FocusStopAdaptor(screen, model, new QWidget(parent));
}

} // namespace quill::qt
