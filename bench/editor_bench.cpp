// SPDX-License-Identifier: MIT
// One Add Menu Item in a tree of 20,000 items: from the command to the repainted window, and what
// keeping it on the disk adds.
//
// Run by hand or by scripts/bench; QT_QPA_PLATFORM=offscreen keeps other windows out of the figure.
// The floor is the same command in a tree of 20 items, in the same run.

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTreeView>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/frm_main.h"
#include "model/tree_editing.h"
#include "platform/fake/fake_file_system.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"
#include "recovery/document_keeper.h"

namespace {

constexpr int kRounds = 51;
constexpr int kKeptCommands = 5000;

/// The services of an editor that asks nobody anything.
struct Services {
    zev::FakeFileSystem files;
    zev::FakeMessageBox messages;
    zev::FakeCommonDialogs dialogs;
    zev::FakeShell shell;
    zev::FakeHelpViewer help;
    zev::FakeBrowserView browser;
    zev::EditorServices all{files, messages, dialogs, shell, help, browser};
};

/// A menu of `itemCount` items side by side.
zev::MenuContent menuOf(int itemCount) {
    zev::MenuContent content;
    for (int number = 0; number < itemCount; ++number) {
        zev::ItemProp item;
        item.Caption = "Item " + std::to_string(number);
        item.MenuProperty = zev::newItemMenuProp();
        std::string text = item.Caption;
        content.tree.append(nullptr, "Key " + std::to_string(number), std::move(text),
                            std::move(item));
    }
    content.ItemCounter = static_cast<std::int16_t>(itemCount);
    return content;
}

/// Median milliseconds of one Add Menu Item, its repaint included.
double medianAddMs(int itemCount) {
    Services services;
    zev::frmMain window(services.all, "/program", new QWidget);
    window.resize(1000, 700);
    window.show();
    window.document().open(menuOf(itemCount));
    QApplication::processEvents();

    auto* const command = window.findChild<QAction*>("mnuEditAddMenuItem");
    auto* const tree = window.findChild<QTreeView*>("TreeView");
    std::vector<double> milliseconds;
    for (int round = 0; round < kRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        command->trigger();
        QApplication::processEvents();
        tree->viewport()->repaint();
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(milliseconds.begin(), milliseconds.begin() + kRounds / 2, milliseconds.end());
    return milliseconds[kRounds / 2];
}

struct KeepingMs {
    double whole;   ///< of the whole menu, as when it is opened
    double median;  ///< of what a command changed
    double most;    ///< 99 of 100 commands take no longer
};

/// Milliseconds that keeping a command on the disk takes.
KeepingMs keepingMs(int itemCount) {
    const QTemporaryDir folder;
    zev::PosixFileSystem files;
    zev::RecoveryStore store(files, folder.path().toStdString() + "/recovery");
    zev::MenuDocument document("/program");
    document.open(menuOf(itemCount));
    const auto history = std::make_unique<zev::DocumentHistory>(document);
    zev::DocumentKeeper keeper(document, *history, store, [] { return 0; });
    QElapsedTimer timer;
    timer.start();
    bool isKept = !keeper.keep();
    const double whole = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    std::vector<double> milliseconds;
    for (int round = 0; round < kKeptCommands; ++round) {
        history->begin();
        zev::addMenuItem(document);
        history->end("Add Menu Item");
        timer.start();
        isKept = !keeper.keep() && isKept;
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    if (!isKept)
        qFatal("nothing is kept");
    std::sort(milliseconds.begin(), milliseconds.end());
    return {whole, milliseconds[milliseconds.size() / 2],
            milliseconds[milliseconds.size() * 99 / 100]};
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The large tree first: in the memory that another window has left, its nodes would lie
    // scattered.
    const double large = medianAddMs(20000);
    const double small = medianAddMs(20);
    std::printf("Add Menu Item among 20,000: %.2f ms, among 20: %.2f ms, ratio %.2f\n", large,
                small, large / small);
    const KeepingMs keeping = keepingMs(20000);
    std::printf(
        "Kept on the disk among 20,000: %.3f ms a command, 99 of 100 within %.3f ms; all %.1f ms\n",
        keeping.median, keeping.most, keeping.whole);
    return 0;
}
