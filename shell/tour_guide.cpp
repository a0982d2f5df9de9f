#include "shell/tour_guide.h"

#include "framework/documents.h"
#include "shell/user_input.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QToolBar>

#include <cstdio>

namespace quill::shell {

namespace {

std::string attributeIn(const IXMLDOMDocument& document, const std::string& parameter,
                        const char* attribute)
{
    return documents::attributeText(documents::findParameter(document, parameter), attribute);
}

QPixmap pictureOf(QWidget& widget, qreal scale)
{
    QPixmap result((QSizeF(widget.size()) * scale).toSize());
    result.setDevicePixelRatio(scale);
    result.fill(Qt::transparent);
    widget.render(&result);
    return result;
}

} // namespace

TourGuide::TourGuide(const QString& folder, const QString& datafile) : mFolder(folder)
{
    if (!QDir().mkpath(folder)) {
        throw platform::Failure(platform::kPathAccess,
                                "cannot make the folder " + folder.toStdString());
    }
    QTemporaryDir work;
    work.setAutoRemove(false);
    mWork     = work.path();
    mDatafile = work.filePath("VX4400H.xml");
    openWindow();
    if (datafile.isEmpty()) {
        mWindow->openSample();
    } else if (!mWindow->openDatafile(datafile)) {
        throw platform::Failure(platform::kFileNotFound, mDialogs.boxes.back().text.toStdString());
    }
    if (!mWindow->saveAs(mDatafile) || !mWindow->openDatafile(mDatafile)) {
        throw platform::Failure(platform::kPathAccess, mDialogs.boxes.back().text.toStdString());
    }
}

TourGuide::~TourGuide()
{
    mWindow.reset();
    QDir(mWork).removeRecursively();
}

void TourGuide::openWindow()
{
    mWindow         = std::make_unique<MainWindow>(&mDialogs, Folders::in(mWork.toStdString()));
    auto& messenger = mWindow->messenger();
    messenger.link().setDelay(std::chrono::milliseconds{0});
    // Nothing happens by itself: the tour reads the status where it shows it.
    mWindow->statusCycle().setInterval(std::chrono::milliseconds{0});
    const auto hear = [this](const IXMLDOMNode& response) {
        const std::string code = documents::responseAttribute(response, "errorCode");
        mHeard.responses << QString::fromStdString(
            documents::responseAttribute(response, "access") + ' ' +
            documents::responseAttribute(response, "name") + ' ' + (code.empty() ? "ok" : code));
    };
    QObject::connect(&messenger, &ShellMessenger::onlineDataArrived, mWindow.get(), hear);
    QObject::connect(&messenger, &ShellMessenger::errorDataArrived, mWindow.get(), hear);
    QObject::connect(&messenger, &ShellMessenger::parameterStateChanged, mWindow.get(),
                     [this](const QString& parameter, const QString& state) {
                         mHeard.states << parameter + ' ' + state;
                     });
    mWindow->show();
    mWindow->activateWindow();
    userInput::settle();
}

void TourGuide::startAnew()
{
    mWindow.reset();
    openWindow();
    mWindow->openDatafile(mDatafile);
    userInput::settle();
}

QWidget& TourGuide::shown(const platform::Widget& widget)
{
    mWindow->view().flush();
    QWidget* const found = mWindow->view().shown(widget);
    if (found == nullptr) {
        throw platform::Failure(platform::kInvalidCall, widget.Name + " is not on the screen");
    }
    return *found;
}

void TourGuide::clickCommand(const char* name)
{
    userInput::settle();
    QWidget* const button =
        mWindow->findChild<QToolBar*>("commands")->widgetForAction(mWindow->command(name));
    if (button == nullptr) {
        throw platform::Failure(platform::kInvalidCall, std::string("no button for ") + name);
    }
    userInput::click(*button);
}

void TourGuide::waitForDevice()
{
    check(userInput::wait([this] { return !mWindow->messenger().isWaiting(); }),
          "the device has answered");
}

std::string TourGuide::inDocument(const std::string& parameter, const char* attribute)
{
    return attributeIn(mWindow->messenger().store().document(), parameter, attribute);
}

std::string TourGuide::onDisk(const std::string& parameter, const char* attribute) const
{
    return attributeIn(documents::openFile(mDatafile.toStdString()), parameter, attribute);
}

void TourGuide::tell(const QString& what)
{
    mAccount << QString{} << what;
}

void TourGuide::check(bool holds, const QString& what)
{
    ++mChecks;
    mFailures += holds ? 0 : 1;
    mAccount << (holds ? "    ok      " : "    FAILED  ") + what;
    if (!holds) {
        std::fprintf(stderr, "quill-shell: tour: FAILED: %s\n", qUtf8Printable(what));
    }
}

void TourGuide::picture(const QString& name, qreal scale, QWidget* dialog)
{
    userInput::settle();
    const QString file  = QString("%1-%2.png").arg(++mPictures, 2, 10, QChar(u'0')).arg(name);
    QPixmap       whole = pictureOf(*mWindow, scale);
    if (dialog != nullptr) {
        QPainter painter(&whole);
        painter.fillRect(QRect(QPoint(0, 0), mWindow->size()), QColor(0, 0, 0, 90));
        const QPoint corner((mWindow->width() - dialog->width()) / 2,
                            (mWindow->height() - dialog->height()) / 2);
        painter.drawPixmap(corner, pictureOf(*dialog, scale));
    }
    const bool written = whole.save(QDir(mFolder).filePath(file));
    check(written, "picture " + file);
}

bool TourGuide::finish()
{
    const QString result =
        QString("%1 checks, %2 failed, %3 pictures").arg(mChecks).arg(mFailures).arg(mPictures);
    mAccount << QString{} << (mFailures == 0 ? "All went well: " : "NOT WELL: ") + result
             << QString{};
    QFile            file(QDir(mFolder).filePath("account.txt"));
    const QByteArray text = mAccount.join(u'\n').toUtf8();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size()) {
        std::fprintf(stderr, "quill-shell: cannot write %s\n", qUtf8Printable(file.fileName()));
        return false;
    }
    std::printf("%s\nPictures and account: %s\n",
                qUtf8Printable((mFailures == 0 ? "All went well: " : "NOT WELL: ") + result),
                qUtf8Printable(QDir(mFolder).absolutePath()));
    return mFailures == 0;
}

} // namespace quill::shell
