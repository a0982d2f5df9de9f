#include "qt/qt_toolkit.h"

#include "platform/failure.h"
#include "platform/menu.h"
#include "qt/geometry.h"
#include "qt/keys.h"
#include "qt/text.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QtMath>

#include <set>

namespace quill::qt {

/// Watches every key of the application, as Qt does not tell which ones are down.
class QtToolkit::Keys : public QObject {
public:
    Keys() { qApp->installEventFilter(this); }

    [[nodiscard]] bool isDown(int code) const { return mDown.count(code) != 0; }

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride: changed(static_cast<QKeyEvent&>(*event), true); break;
        case QEvent::KeyRelease: changed(static_cast<QKeyEvent&>(*event), false); break;
        case QEvent::ApplicationStateChange:
            // Keys that come up over another program are not told.
            mDown.clear();
            break;
        default: break;
        }
        return false;
    }

private:
    void changed(const QKeyEvent& event, bool down)
    {
        if (event.key() == Qt::Key_Shift) {
            set(platform::kKeyShift, down);
            return;
        }
        set(platform::kKeyShift, event.modifiers().testFlag(Qt::ShiftModifier));
        if (const int code = keyCode(event.key()); code != 0 && !event.isAutoRepeat()) {
            set(code, down);
        }
    }

    void set(int code, bool down)
    {
        if (down) {
            mDown.insert(code);
        } else {
            mDown.erase(code);
        }
    }

    std::set<int> mDown;
};

platform::Locale localeForms(const QLocale& locale)
{
    platform::Locale forms;
    forms.decimal = fromQt(QString(locale.decimalPoint()));

    QString date = locale.dateFormat(QLocale::ShortFormat);
    if (!date.contains(QLatin1String("yyyy"))) {
        date.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    // A month in letters has no place in a pattern of numbers.
    if (!date.contains(QLatin1String("MMM"))) {
        forms.shortDate = fromQt(date);
    }

    QString time = locale.timeFormat(QLocale::LongFormat);
    // Values are on the wall clock, so the zone goes; the blanks around it may be narrow ones.
    time.replace(QLatin1String("Ap"), QLatin1String("AP"));
    time.replace(QLatin1String("ap"), QLatin1String("AP"));
    time.remove(u't');
    time = time.simplified();
    if (time.contains(QLatin1String("ss"))) {
        forms.longTime = fromQt(time);
    }
    return forms;
}

QtToolkit::QtToolkit() : mLocale(localeForms(QLocale())), mKeys(std::make_unique<Keys>()) {}

QtToolkit::~QtToolkit()
{
    if (qApp != nullptr) {
        setMousePointer(platform::kDefaultPointer);
    }
}

void QtToolkit::setLocale(const platform::Locale& locale)
{
    mLocale = locale;
}

std::int32_t QtToolkit::textWidth(const std::string& text)
{
    // Rounded up: a label that is given this width is not to lose a part of its last letter.
    return toTwips(qCeil(QFontMetricsF(QApplication::font()).horizontalAdvance(toQt(text))));
}

platform::DateTime QtToolkit::now()
{
    const QDateTime now  = QDateTime::currentDateTime();
    const QDate     date = now.date();
    const QTime     time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

bool QtToolkit::keyDown(int code)
{
    return mKeys->isDown(code);
}

std::string QtToolkit::clipboard()
{
    return fromQt(QApplication::clipboard()->text());
}

void QtToolkit::setClipboard(const std::string& text)
{
    QApplication::clipboard()->setText(toQt(text));
}

std::optional<std::string> QtToolkit::askForFile(const platform::FileDialog& dialog)
{
    using Purpose     = platform::FileDialog::Purpose;
    const bool  saves = dialog.purpose == Purpose::save;
    QFileDialog shown(QApplication::activeWindow(), toQt(dialog.title), toQt(dialog.folder));
    shown.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    shown.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    QStringList filters;
    for (const auto& [description, pattern] : dialog.filters) {
        filters << QStringLiteral("%1 (%2)").arg(toQt(description),
                                                 toQt(pattern).replace(u';', u' '));
    }
    if (!filters.isEmpty()) {
        shown.setNameFilters(filters);
        const QString suffix = toQt(dialog.filters.front().second).section(u'.', -1);
        if (saves && !suffix.contains(u'*')) {
            shown.setDefaultSuffix(suffix);
        }
    }
    if (!dialog.fileName.empty()) {
        shown.selectFile(toQt(dialog.fileName));
    }
    if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return fromQt(QDir::toNativeSeparators(shown.selectedFiles().constFirst()));
}

void QtToolkit::popUpMenu(platform::Menu& menu)
{
    // The menu may die while it is open.
    platform::Menu* alive = &menu;
    QMenu           shown;
    auto            watch = menu.Changed.subscribe([&](const platform::WidgetChange& change) {
        if (change.what == platform::WidgetChange::What::destroyed) {
            alive = nullptr;
            shown.close();
        }
    });
    int             index = 0;
    for (const platform::MenuItem& item : menu.Items()) {
        QAction* const action = shown.addAction(toQt(item.Caption));
        action->setEnabled(item.Enabled);
        action->setData(index++);
    }
    const QAction* const chosen = shown.exec(QCursor::pos());
    if (alive != nullptr && chosen != nullptr) {
        watch.drop();
        alive->click(chosen->data().toInt());
    }
}

void QtToolkit::debugOutput(const std::string& text)
{
    qInfo().noquote() << toQt(text);
}

void QtToolkit::doEvents()
{
    QCoreApplication::processEvents();
}

std::int32_t QtToolkit::mousePointer()
{
    return mPointer;
}

void QtToolkit::setMousePointer(std::int32_t pointer)
{
    const bool wasBusy = mPointer == platform::kArrowAndHourglass;
    const bool isBusy  = pointer == platform::kArrowAndHourglass;
    mPointer           = pointer;
    if (isBusy && !wasBusy) {
        QApplication::setOverrideCursor(Qt::BusyCursor);
    } else if (wasBusy && !isBusy) {
        QApplication::restoreOverrideCursor();
    }
}

std::string QtToolkit::currentFolder()
{
    return fromQt(QDir::toNativeSeparators(QDir::currentPath()));
}

void QtToolkit::setCurrentFolder(const std::string& path)
{
    if (!QDir::setCurrent(toQt(path).replace(u'\\', u'/'))) {
        throw platform::failure(platform::kPathNotFound);
    }
}

const platform::Locale& QtToolkit::locale()
{
    return mLocale;
}

} // namespace quill::qt
