// SPDX-License-Identifier: MIT
#include <QEventLoop>
#include <QTimer>
#include <QVariant>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <memory>

extern "C" Q_DECL_EXPORT void zevEvaluateInPage(QWidget* widget, const QString* script,
                                                QVariant* value);

void zevEvaluateInPage(QWidget* widget, const QString* script, QVariant* value) {
    const auto* view = widget->findChild<QWebEngineView*>();
    if (view == nullptr)
        return;
    // Shared, because an answer may come after the time is up.
    const auto answer = std::make_shared<QVariant>();
    QEventLoop loop;
    QTimer::singleShot(5000, &loop, &QEventLoop::quit);
    const auto quit = std::make_shared<QObject>();
    QObject::connect(quit.get(), &QObject::objectNameChanged, &loop, &QEventLoop::quit);
    view->page()->runJavaScript(*script, [answer, quit](const QVariant& result) {
        *answer = result;
        quit->setObjectName("answered");
    });
    loop.exec();
    *value = *answer;
}
