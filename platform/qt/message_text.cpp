// SPDX-License-Identifier: MIT
#include "platform/qt/message_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTextDocument>
#include <QTextOption>

namespace zev {

namespace {

/// The length of a line in characters.
constexpr int kLineCharacters = 72;

/// QLabel keeps text that can be selected in a document, whose way of wrapping it sets whenever it
/// lays the text out anew. Asked for a height it has done so, and leaves it until the next change.
class WrappingLabel : public QLabel {
  public:
    /// Takes the place of `plain`, as wide as its text needs to be.
    WrappingLabel(const QString& text, const QLabel& plain, QWidget* parent) : QLabel(parent) {
        setAlignment(plain.alignment());
        setIndent(plain.indent());
        setContentsMargins(plain.contentsMargins());
        setTextFormat(Qt::PlainText);
        setText(text);
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        ensurePolished();
        const int lineWidth = kLineCharacters * fontMetrics().averageCharWidth();
        const int screenPart = screen()->availableGeometry().width() * 2 / 3;
        setMinimumWidth(qMin(sizeHint().width(), qMin(lineWidth, screenPart)));
        setWordWrap(true);
    }

    int heightForWidth(int width) const override {
        breakLongWords(width);
        return QLabel::heightForWidth(width);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        breakLongWords(width());
        QLabel::paintEvent(event);
    }

  private:
    void breakLongWords(int width) const {
        QLabel::heightForWidth(width);
        auto* const document = findChild<QTextDocument*>();
        QTextOption option = document->defaultTextOption();
        if (option.wrapMode() == QTextOption::WrapAtWordBoundaryOrAnywhere)
            return;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        document->setDefaultTextOption(option);
    }
};

}  // namespace

void setMessageText(QMessageBox& box, const QString& text) {
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    auto* const ownLabel = box.findChild<QLabel*>("qt_msgbox_label");
    delete box.layout()->replaceWidget(ownLabel, new WrappingLabel(text, *ownLabel, &box));
    ownLabel->hide();
}

}  // namespace zev
