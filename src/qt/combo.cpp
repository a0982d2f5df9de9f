#include "qt/combo.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace quill::qt {

void Combo::showPopup()
{
    if (mLocked) {
        return;
    }
    constexpr int kMargin = 24;
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + kMargin);
    QComboBox::showPopup();
}

void Combo::paintEvent(QPaintEvent* event)
{
    if (isEditable()) {
        QComboBox::paintEvent(event);
        return;
    }
    constexpr int        kTextMargin = 4;
    QStylePainter        painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const int room =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideRight, room - kTextMargin);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace quill::qt
