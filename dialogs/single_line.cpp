// SPDX-License-Identifier: MIT
#include "dialogs/single_line.h"

#include <QValidator>
#include <algorithm>

namespace zev {

namespace {

/// Characters a box can show; far beyond any property, and still laid out at once.
constexpr int kMaxLength = 100'000;

/// Browsers before 2019 end a line of a script at the last two as well.
bool isBreak(QChar character) {
    return character == u'\n' || character == u'\r' || character == u'\0' ||
           character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

class SingleLine : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override {
        if (std::any_of(text.cbegin(), text.cend(), isBreak)) {
            const QString before = spaced(text.left(cursor));
            cursor = static_cast<int>(before.size());
            text = spaced(text);
        }
        return Acceptable;
    }

  private:
    static QString spaced(QString text) {
        text.replace(u"\r\n"_qs, u" "_qs);
        std::replace_if(text.begin(), text.end(), isBreak, QChar(u' '));
        return text;
    }
};

}  // namespace

void keepSingleLine(QLineEdit& field) {
    field.setMaxLength(kMaxLength);
    field.setValidator(new SingleLine(&field));
}

}  // namespace zev
