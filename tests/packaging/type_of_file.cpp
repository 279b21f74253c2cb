// SPDX-License-Identifier: MIT
// Prints the type that Qt finds for each file, a line each: type_of_file FILE...

#include <QCoreApplication>
#include <QMimeDatabase>
#include <cstdio>

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    const QMimeDatabase types;
    for (const QString& file : QCoreApplication::arguments().mid(1))
        std::puts(qPrintable(types.mimeTypeForFile(file).name()));
}
