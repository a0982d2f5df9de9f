#include "shell/status_sign.h"

#include "qt/images.h"

namespace quill::shell {

namespace {

constexpr int kSymbolSide = 24;

} // namespace

StatusSign::StatusSign(QWidget* parent) : QToolButton(parent)
{
    setObjectName("combinedStatus");
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({kSymbolSide, kSymbolSide});
    setFocusPolicy(Qt::NoFocus); // the keyboard has a command for what a click does
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    setFont(large);
    hide();
}

void StatusSign::showStatus(const std::string& status, const CatalogueTranslator& texts)
{
    const QString word = status.empty() ? QString{} : texts.text(status.c_str());
    const QString name = texts.text("shell_deviceStatusIs").arg(word);
    setIcon(qt::Images::find(status));
    setText(QChar(QChar::Nbsp) + word); // the style sets the text close to the symbol
    setAccessibleName(name);
    setToolTip(name);
    setVisible(!status.empty());
}

QString StatusSign::word() const
{
    return text().mid(1);
}

} // namespace quill::shell
