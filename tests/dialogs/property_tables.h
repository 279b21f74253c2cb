// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

namespace zev {

// Rows of test tables that hold for Default Menu Properties and for Menu Properties alike. Each
// function adds the columns too; a test adds the rows of its own dialog behind them.

/// Controls: object name, frame, label, name for assistive technology, tooltip.
inline void addSharedControls() {
    const char* const kColorTooltip =
        "Color in RGB hexadecimal (#FFFFFF). Set the value to transparent for transparency effect";
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("spoken");
    QTest::addColumn<QString>("tooltip");
    QTest::newRow("columns") << "txtColumns"
                             << "FrameMenu"
                             << "Columns:"
                             << "Columns"
                             << "Number of menu columns. Set to 1 for vertical menus and a "
                                "large number for horizontal menus";
    QTest::newRow("image") << "txtBgImg"
                           << "FrameBackground"
                           << "Image:"
                           << "Image"
                           << "Menu background image";
    QTest::newRow("highlighted background") << "txtHBgColor"
                                            << "FrameBackground"
                                            << "Highlight Color:"
                                            << "Background highlight color" << kColorTooltip;
    QTest::newRow("normal background") << "txtNBgColor"
                                       << "FrameBackground"
                                       << "Normal Color:"
                                       << "Background normal color" << kColorTooltip;
    QTest::newRow("highlighted text") << "txtHFtColor"
                                      << "FrameFont"
                                      << "Highlight Color:"
                                      << "Font highlight color" << kColorTooltip;
    QTest::newRow("normal text") << "txtNFtColor"
                                 << "FrameFont"
                                 << "Normal Color:"
                                 << "Font normal color" << kColorTooltip;
}

/// Buttons: object name, caption.
inline void addSharedButtons() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::newRow("browse") << "cmdBrowseBgImg"
                            << "Browse";
    QTest::newRow("highlighted background") << "cmdHBgColor"
                                            << "Select Color";
    QTest::newRow("normal background") << "cmdNBgColor"
                                       << "Select Color";
    QTest::newRow("highlighted text") << "cmdHFtColor"
                                      << "Select Color";
    QTest::newRow("normal text") << "cmdNFtColor"
                                 << "Select Color";
    QTest::newRow("font") << "cmdFont"
                          << "Select Font";
    QTest::newRow("OK") << "cmdOK"
                        << "OK";
    QTest::newRow("Cancel") << "cmdCancel"
                            << "Cancel";
}

/// Numbers typed key by key: box, keys, bounds in the message that appears (empty: none), text that
/// is left.
inline void addSharedNumbers() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("bounds");
    QTest::addColumn<QString>("shown");
    QTest::newRow("spacing 1000") << "txtSpacing"
                                  << "1000"
                                  << ""
                                  << "1000";
    QTest::newRow("spacing 1001") << "txtSpacing"
                                  << "1001"
                                  << "0 and 1000"
                                  << "";
}

/// Colours: their name behind "txt" and "cmd", and the part of the previews that shows them.
inline void addColors() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("changed");
    QTest::newRow("highlighted background") << "HBgColor"
                                            << "lblFont back";
    QTest::newRow("highlighted text") << "HFtColor"
                                      << "lblFont fore";
    QTest::newRow("normal background") << "NBgColor"
                                       << "lblPreviewNormal back";
    QTest::newRow("normal text") << "NFtColor"
                                 << "lblPreviewNormal fore";
}

}  // namespace zev
