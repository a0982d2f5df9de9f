#include "qt/combo.h"
#include "qt/kinds.h"
#include "qt/text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QSignalBlocker>

namespace quill::qt {

namespace {

class ComboAdaptor : public KindAdaptor<platform::ComboBox, Combo> {
public:
    ComboAdaptor(Screen& screen, platform::ComboBox& model, Combo* box)
        : KindAdaptor(screen, model, box)
    {
        box->setInsertPolicy(QComboBox::NoInsert);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        connect(box, &QComboBox::activated, this, [this](int row) {
            if (this->model() != nullptr) {
                byUser([&] { kind().choose(row); });
            }
        });
        connect(box, &QComboBox::editTextChanged, this, [this](const QString& text) {
            // Only what the user types arrives here; a row that he chooses is told by itself.
            if (this->model() != nullptr && kind().Editable && shown()->lineEdit() != nullptr &&
                shown()->lineEdit()->isModified()) {
                byUser([&] { kind().type(fromQt(text)); });
            }
        });
    }

    void update() override
    {
        Adaptor::update();
        const QSignalBlocker quiet(shown());
        showEditable();
        shown()->setLocked(kind().Locked);
        // A box that is not editable is painted as a button by many styles.
        showColors(kind().Editable ? QPalette::Text : QPalette::ButtonText,
                   kind().Editable ? QPalette::Base : QPalette::Button);
        // The entries of the open list have no state of their own.
        shown()->view()->setPalette(QApplication::palette(shown()->view()));
        showRows();
        if (shown()->currentIndex() != kind().ListIndex()) {
            shown()->setCurrentIndex(kind().ListIndex());
        }
        if (const QString text = toQt(kind().Text());
            kind().Editable && shown()->currentText() != text) {
            shown()->setEditText(text);
        }
        showToolTip();
    }

    void place(const QRect& rect) override
    {
        Adaptor::place(rect);
        showToolTip();
    }

    [[nodiscard]] Fit fit() const override
    {
        constexpr int kUsualHeight = 315;
        return {shown()->sizeHint(), kUsualHeight, false, true};
    }

protected:
    [[nodiscard]] bool takesText() const override { return kind().Editable; }
    [[nodiscard]] bool changesByWheel() const override { return true; }

    void note(const platform::WidgetChange& change) override
    {
        mRebuild = mRebuild || change.what == platform::WidgetChange::What::reset;
    }

    [[nodiscard]] QString extraToolTip() const override
    {
        constexpr int kArrow = 28;
        const QString text   = model() != nullptr ? toQt(kind().Text()) : QString{};
        return shown()->fontMetrics().horizontalAdvance(text) > shown()->width() - kArrow
                   ? text
                   : QString{};
    }

#ifdef Q_OS_UNIX
    /// Here Qt gives a list's value for its name, so what it is called is told behind that.
    [[nodiscard]] QString description(const QString& name) const override
    {
        QStringList lines{name, shown()->toolTip()};
        lines.removeAll(QString{});
        return lines.join(u'\n');
    }
#endif

private:
    void showEditable()
    {
        if (shown()->isEditable() != kind().Editable) {
            shown()->setEditable(kind().Editable);
            if (kind().Editable) {
                shown()->setCompleter(nullptr);
            }
        }
        if (shown()->lineEdit() != nullptr) {
            shown()->lineEdit()->setReadOnly(kind().Locked);
        }
    }

    void showRows()
    {
        const auto& list = kind().List();
        if (mRebuild) {
            mRebuild = false;
            shown()->clear();
        }
        for (int row = shown()->count(); row < kind().ListCount(); ++row) {
            shown()->addItem(toQt(list[static_cast<std::size_t>(row)]));
        }
    }

    bool mRebuild = false;
};

} // namespace

Adaptor* makeComboBox(Screen& screen, platform::ComboBox& model, QWidget* parent)
{
    return new ComboAdaptor(screen, model, new Combo(parent));
}

} // namespace quill::qt
