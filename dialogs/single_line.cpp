#include "dialogs/single_line.h"

#include <QValidator>

namespace zev {

namespace {

class SingleLine : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override {
        if (text.contains(u'\n') || text.contains(u'\r')) {
            const QString before = spaced(text.left(cursor));
            cursor = static_cast<int>(before.size());
            text = spaced(text);
        }
        return Acceptable;
    }

  private:
    static QString spaced(QString text) {
        return text.replace(u"\r\n"_qs, u" "_qs).replace(u'\n', u' ').replace(u'\r', u' ');
    }
};

}  // namespace

void keepSingleLine(QLineEdit& field) {
    field.setValidator(new SingleLine(&field));
}

}  // namespace zev
