// SPDX-License-Identifier: MIT
// The floor of every start-up figure: the smallest program that shows a window of the toolkit.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLabel window(QStringLiteral("An empty window"));
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
