#include "qt/kinds.h"
#include "qt/text.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace quill::qt {

namespace {

class TextBoxAdaptor : public KindAdaptor<platform::TextBox, QLineEdit> {
public:
    TextBoxAdaptor(Screen& screen, platform::TextBox& model, QLineEdit* edit)
        : KindAdaptor(screen, model, edit)
    {
        edit->setMaxLength(kNoLimit);
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (this->model() != nullptr) {
                const auto cursor = fromQtPosition(text, shown()->cursorPosition());
                byUser([&] { kind().type(fromQt(text), cursor); });
            }
        });
        // The controls read where the cursor is before they correct a text.
        connect(edit, &QLineEdit::selectionChanged, this, [this] { tellSelection(); });
        connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { tellSelection(); });
    }

    void update() override
    {
        Adaptor::update();
        showColors(QPalette::Text, QPalette::Base);
        const QSignalBlocker quiet(shown());
        shown()->setReadOnly(kind().Locked);
        shown()->setAlignment(Qt::AlignVCenter | horizontal());
        const QString text = toQt(kind().Text);
        // Longer texts of the program are shown whole; only typing is limited.
        const int limit = kind().MaxLength > 0
                              ? std::max(static_cast<int>(text.size()), kind().MaxLength.get())
                              : kNoLimit;
        if (shown()->maxLength() != limit) {
            shown()->setMaxLength(limit);
        }
        if (shown()->text() != text) {
            shown()->setText(text);
        }
        showSelection();
    }

    [[nodiscard]] Fit fit() const override
    {
        constexpr int kUsualHeight = 315;
        return {shown()->sizeHint(), kUsualHeight, false, true};
    }

protected:
    [[nodiscard]] bool takesText() const override { return true; }

    bool otherEvent(QEvent& event) override
    {
        switch (event.type()) {
        case QEvent::FocusIn:
            mSelectedByClick = static_cast<QFocusEvent&>(event).reason() == Qt::MouseFocusReason &&
                               model() != nullptr && kind().SelLength > 0;
            mStart  = model() != nullptr ? kind().SelStart.get() : 0;
            mLength = model() != nullptr ? kind().SelLength.get() : 0;
            break;
        case QEvent::MouseButtonRelease:
            // The click that brings the focus would undo the selection that the control makes
            // when it gets the focus; a drag of the user's stays.
            if (mSelectedByClick && !shown()->hasSelectedText()) {
                kind().SelStart  = mStart;
                kind().SelLength = mLength;
                refresh();
            }
            mSelectedByClick = false;
            break;
        default: break;
        }
        return false;
    }

private:
    static constexpr int kNoLimit = 1 << 24;

    [[nodiscard]] Qt::Alignment horizontal() const
    {
        switch (static_cast<platform::TextAlignment>(kind().Alignment.get())) {
        case platform::TextAlignment::right: return Qt::AlignRight;
        case platform::TextAlignment::center: return Qt::AlignHCenter;
        default: return Qt::AlignLeft;
        }
    }

    void showSelection()
    {
        // A selection means the next key, which goes to the box with the focus only.
        if (!shown()->hasFocus()) {
            shown()->deselect();
            return;
        }
        const QString text  = shown()->text();
        const int     start = toQtPosition(text, kind().SelStart);
        const auto behind = std::min<std::int64_t>(std::int64_t{kind().SelStart} + kind().SelLength,
                                                   std::numeric_limits<std::int32_t>::max());
        const int  end    = toQtPosition(text, static_cast<std::int32_t>(behind));
        const bool same   = end > start
                                ? shown()->selectionStart() == start &&
                                    shown()->selectedText().size() == end - start
                                : !shown()->hasSelectedText() && shown()->cursorPosition() == start;
        if (same) {
            return;
        }
        if (end > start) {
            shown()->setSelection(start, end - start);
        } else {
            shown()->setCursorPosition(start);
        }
    }

    void tellSelection()
    {
        // While the user types, Qt moves the cursor before it tells the text.
        if (model() == nullptr || shown()->text() != toQt(kind().Text)) {
            return;
        }
        const QString text  = shown()->text();
        const bool    any   = shown()->hasSelectedText();
        const int     start = any ? shown()->selectionStart() : shown()->cursorPosition();
        kind().SelLength    = any ? fromQtPosition(shown()->selectedText(),
                                                   static_cast<int>(shown()->selectedText().size()))
                                  : 0;
        kind().SelStart     = fromQtPosition(text, start);
    }

    bool         mSelectedByClick = false;
    std::int32_t mStart           = 0;
    std::int32_t mLength          = 0;
};

} // namespace

Adaptor* makeTextBox(Screen& screen, platform::TextBox& model, QWidget* parent)
{
    return new TextBoxAdaptor(screen, model, new QLineEdit(parent));
}

} // namespace quill::qt
