#include "qt/images.h"
#include "qt/kinds.h"
#include "qt/text.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <vector>

namespace quill::qt {

namespace {

/// The icon of a button in the states that it has a picture for.
QIcon iconOf(const platform::ButtonBase& button, bool down)
{
    const QIcon normal = Images::find(button.Picture);
    if (down) {
        const QIcon pressed = Images::find(button.DownPicture);
        return pressed.isNull() ? normal : pressed;
    }
    const QIcon disabled = Images::find(button.DisabledPicture);
    if (button.Enabled || disabled.isNull()) {
        return normal;
    }
    constexpr QSize kSize(32, 32);
    QIcon           icon;
    icon.addPixmap(disabled.pixmap(kSize), QIcon::Disabled);
    return icon;
}

/// What the three kinds of buttons have in common.
template <class Model, class Shown>
class ButtonAdaptor : public KindAdaptor<Model, Shown> {
public:
    ButtonAdaptor(Screen& screen, Model& model, Shown* button)
        : KindAdaptor<Model, Shown>(screen, model, button)
    {
        QObject::connect(button, &Shown::clicked, this, [this] {
            if (this->model() != nullptr) {
                this->byUser([this] { this->kind().click(); });
            }
        });
        for (auto signal : {&Shown::pressed, &Shown::released}) {
            QObject::connect(button, signal, this, [this] {
                if (this->model() != nullptr) {
                    showPicture();
                }
            });
        }
    }

    void update() override
    {
        Adaptor::update();
        this->showColors(textRole(), groundRole());
        showPicture();
        showText();
        showValue();
    }

    void place(const QRect& rect) override
    {
        Adaptor::place(rect);
        showText();
        this->showToolTip();
    }

    [[nodiscard]] QString ownName() const override
    {
        return toQt(this->kind().Caption).remove(u'&');
    }

protected:
    virtual void showValue() {}
    /// Room for the text alone.
    [[nodiscard]] virtual int                 textRoom() const   = 0;
    [[nodiscard]] virtual QPalette::ColorRole textRole() const   = 0;
    [[nodiscard]] virtual QPalette::ColorRole groundRole() const = 0;

    [[nodiscard]] bool movesThings(const platform::WidgetChange& change) const override
    {
        return change.property == &this->kind().Caption ||
               change.property == &this->kind().Picture || Adaptor::movesThings(change);
    }

    [[nodiscard]] QString extraToolTip() const override { return mCut ? ownName() : QString{}; }

    [[nodiscard]] int fullTextWidth() const
    {
        return this->shown()
            ->fontMetrics()
            .size(Qt::TextShowMnemonic, toQt(this->kind().Caption))
            .width();
    }

private:
    void showPicture() { this->shown()->setIcon(iconOf(this->kind(), this->shown()->isDown())); }

    void showText()
    {
        const QString full = toQt(this->kind().Caption);
        const QString text = this->shown()->fontMetrics().elidedText(
            full, Qt::ElideRight, textRoom(), Qt::TextShowMnemonic);
        mCut = text != full;
        this->shown()->setText(text);
    }

    bool mCut = false;
};

/// A check or option without a ground of its own paints nothing but its mark.
QPalette::ColorRole checkGround(const platform::Widget& model)
{
    return model.BackColor == platform::kButtonFace ? QPalette::Base : QPalette::Window;
}

/// Room that the style needs beside the text, from the text that stands there at present.
template <class Shown>
int besideText(const Shown& button)
{
    constexpr int kOverhang = 3; // of the last letter
    return kOverhang +
           std::max(0, button.sizeHint().width() -
                           button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width());
}

class CommandAdaptor : public ButtonAdaptor<platform::CommandButton, QPushButton> {
public:
    CommandAdaptor(Screen& screen, platform::CommandButton& model, QPushButton* button)
        : ButtonAdaptor(screen, model, button)
    {
        // Enter goes to the form's own handlers.
        button->setAutoDefault(false);
    }

    [[nodiscard]] Fit fit() const override
    {
        constexpr int kUsualHeight = 375;
        return {QSize(fullTextWidth() + kPadding + icon(), shown()->sizeHint().height()),
                kUsualHeight, true, true};
    }

protected:
    // A style has a least width for buttons, so the room beside the text is set here.
    static constexpr int kPadding = 20;
    [[nodiscard]] int    icon() const
    {
        return shown()->icon().isNull() ? 0 : shown()->iconSize().width() + 4;
    }
    [[nodiscard]] int textRoom() const override { return shown()->width() - 8 - icon(); }
    [[nodiscard]] QPalette::ColorRole textRole() const override { return QPalette::ButtonText; }
    [[nodiscard]] QPalette::ColorRole groundRole() const override { return QPalette::Button; }
};

class CheckAdaptor : public ButtonAdaptor<platform::CheckBox, QCheckBox> {
public:
    using ButtonAdaptor::ButtonAdaptor;

    [[nodiscard]] Fit fit() const override
    {
        constexpr int kUsualHeight = 255;
        return {QSize(fullTextWidth() + besideText(*shown()), shown()->sizeHint().height()),
                kUsualHeight, true, true};
    }

protected:
    void              showValue() override { shown()->setChecked(kind().Value != 0); }
    [[nodiscard]] int textRoom() const override { return shown()->width() - besideText(*shown()); }
    [[nodiscard]] QPalette::ColorRole textRole() const override { return QPalette::WindowText; }
    [[nodiscard]] QPalette::ColorRole groundRole() const override { return checkGround(kind()); }
};

class OptionAdaptor : public ButtonAdaptor<platform::OptionButton, QRadioButton> {
public:
    OptionAdaptor(Screen& screen, platform::OptionButton& model, QRadioButton* button)
        : ButtonAdaptor(screen, model, button)
    {
        // Qt would count the options of inner frames into the group, so the mark and the arrow
        // keys go by the model alone.
        button->setAutoExclusive(false);
    }

    [[nodiscard]] Fit fit() const override
    {
        constexpr int kUsualHeight = 255;
        return {QSize(fullTextWidth() + besideText(*shown()), shown()->sizeHint().height()),
                kUsualHeight, true, true};
    }

protected:
    void showValue() override { shown()->setChecked(kind().Value); }

    bool unclaimedKey(const QKeyEvent& event) override
    {
        const bool back = event.key() == Qt::Key_Up || event.key() == Qt::Key_Left;
        if (!back && event.key() != Qt::Key_Down && event.key() != Qt::Key_Right) {
            return false;
        }
        std::vector<platform::OptionButton*> group;
        if (kind().Owner() != nullptr) {
            for (platform::Widget* widget : kind().Owner()->Widgets()) {
                auto* const option = dynamic_cast<platform::OptionButton*>(widget);
                if (option != nullptr && option->Container() == kind().Container() &&
                    option->acceptsUser()) {
                    group.push_back(option);
                }
            }
        }
        const auto own = std::find(group.begin(), group.end(), &kind());
        if (own == group.end() || group.size() < 2) {
            return true;
        }
        const auto place = static_cast<std::size_t>(own - group.begin());
        const auto step  = back ? group.size() - 1 : 1;
        byUser([&] { group[(place + step) % group.size()]->click(); });
        return true;
    }

    [[nodiscard]] int textRoom() const override { return shown()->width() - besideText(*shown()); }
    [[nodiscard]] QPalette::ColorRole textRole() const override { return QPalette::WindowText; }
    [[nodiscard]] QPalette::ColorRole groundRole() const override { return checkGround(kind()); }
};

} // namespace

Adaptor* makeCommandButton(Screen& screen, platform::CommandButton& model, QWidget* parent)
{
    return new CommandAdaptor(screen, model, new QPushButton(parent));
}

Adaptor* makeCheckBox(Screen& screen, platform::CheckBox& model, QWidget* parent)
{
    return new CheckAdaptor(screen, model, new QCheckBox(parent));
}

Adaptor* makeOptionButton(Screen& screen, platform::OptionButton& model, QWidget* parent)
{
    return new OptionAdaptor(screen, model, new QRadioButton(parent));
}

} // namespace quill::qt
