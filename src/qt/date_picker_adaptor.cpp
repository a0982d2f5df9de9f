#include "platform/toolkit.h"
#include "qt/kinds.h"
#include "qt/text.h"

#include <QDateTimeEdit>
#include <QEvent>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>

namespace quill::qt {

namespace {

// Wall-clock values: in UTC every time of day exists on every day.
QDateTime toQtDate(const platform::DateTime& value)
{
    return {QDate(value.year, value.month, value.day),
            QTime(value.hour, value.minute, value.second), Qt::UTC};
}

platform::DateTime fromQtDate(const QDateTime& value)
{
    const QDate date = value.date();
    const QTime time = value.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

class DateAdaptor : public KindAdaptor<platform::DatePicker, QDateTimeEdit> {
public:
    DateAdaptor(Screen& screen, platform::DatePicker& model, QDateTimeEdit* edit)
        : KindAdaptor(screen, model, edit)
    {
        edit->setTimeSpec(Qt::UTC);
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& value) {
            if (this->model() != nullptr) {
                byUser([&] { kind().pick(fromQtDate(value)); });
            }
        });
    }

    void update() override
    {
        Adaptor::update();
        showColors(QPalette::Text, QPalette::Base);
        const QSignalBlocker quiet(shown());
        shown()->setReadOnly(kind().Locked);
        const bool time = format() == platform::PickerFormat::time;
        if (const QString pattern = displayFormat(); shown()->displayFormat() != pattern) {
            shown()->setDisplayFormat(pattern);
        }
        if (shown()->calendarPopup() == time) {
            shown()->setCalendarPopup(!time);
        }
        const QDateTime min = toQtDate(kind().MinDate());
        const QDateTime max = toQtDate(kind().MaxDate());
        if (shown()->minimumDateTime() != min || shown()->maximumDateTime() != max) {
            shown()->setDateTimeRange(min, max);
        }
        if (const QDateTime value = toQtDate(kind().Value()); shown()->dateTime() != value) {
            shown()->setDateTime(value);
        }
    }

    [[nodiscard]] Fit fit() const override
    {
        constexpr int kUsualHeight = 315;
        return {shown()->sizeHint(), kUsualHeight, false, true};
    }

protected:
    [[nodiscard]] bool takesText() const override { return true; }
    [[nodiscard]] bool changesByWheel() const override { return true; }

    bool otherEvent(QEvent& event) override
    {
        // The chosen section stays marked otherwise, as if it still had the focus.
        if (event.type() == QEvent::FocusOut) {
            QMetaObject::invokeMethod(
                this, [this] { unmark(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void unmark()
    {
        if (model() != nullptr && !shown()->hasFocus()) {
            shown()->findChild<QLineEdit*>()->deselect();
        }
    }

    [[nodiscard]] platform::PickerFormat format() const
    {
        return static_cast<platform::PickerFormat>(kind().Format.get());
    }

    [[nodiscard]] QString displayFormat() const
    {
        switch (format()) {
        case platform::PickerFormat::time:
            return toQt(platform::Toolkit::current().locale().longTime);
        case platform::PickerFormat::longDate: return QLocale().dateFormat(QLocale::LongFormat);
        default: return toQt(platform::Toolkit::current().locale().shortDate);
        }
    }
};

} // namespace

Adaptor* makeDatePicker(Screen& screen, platform::DatePicker& model, QWidget* parent)
{
    return new DateAdaptor(screen, model, new QDateTimeEdit(parent));
}

} // namespace quill::qt
