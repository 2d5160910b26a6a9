// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/spokentree.h"
#include "support/testregistry.h"

#include <QTest>

#include <algorithm>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 10000;

/// For messages: what a screen reader finds.
QString toldBy(const SpokenTree &tree, const SpokenControl &top)
{
    QStringList lines;
    const std::vector<SpokenControl> all = tree.showing(top);
    for (const SpokenControl &control : all)
        lines.append(control.role + u": "_s + control.name);
    return lines.join(u'\n');
}

bool isRow(const SpokenControl &control)
{
    return control.role == u"tree item" || control.role == u"list item" || control.role == u"table cell";
}

/// Showing controls that take the focus and have no name or no role; rows and the boxes inside lists aside.
QStringList silent(const SpokenTree &tree, const SpokenControl &top, int &focusable)
{
    QStringList found;
    const std::vector<SpokenControl> all = tree.showing(top);
    for (const SpokenControl &control : all) {
        if (!control.focusable || isRow(control))
            continue;
        ++focusable;
        if (control.name.trimmed().isEmpty() || control.role.isEmpty() || control.role == u"unknown")
            found.append(control.role + u" \""_s + control.name + u"\" "_s + control.path);
    }
    return found;
}

} // namespace

/// The running program as a screen reader finds it, over the desktop's own bus for assistive technology.
class TstScreenReader final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowSpeaks()
    {
        const SpokenTree tree;
        const ProgramFolder folder;
        const QString file = folder.write(
            u"site/page.html"_s, "<html>\r\n<body>\r\n<h1 id=\"top\">One</h1>\r\n<p>Two</p>\r\n</body>\r\n</html>\r\n");
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QVERIFY(program.waitForWindow(title));
        const auto spoken = tree.program();
        QVERIFY(spoken);
        QCOMPARE(spoken->role, u"application"_s);
        const auto window = tree.find(*spoken, [&](const SpokenControl &c) { return c.name.startsWith(title); });
        QVERIFY2(window, qPrintable(toldBy(tree, *spoken)));

        // The code view tells the line of the caret, also after keys.
        const auto source =
            tree.find(*spoken, [](const SpokenControl &c) { return c.name == u"Source of the document"; });
        QVERIFY2(source, qPrintable(toldBy(tree, *spoken)));
        QCOMPARE(source->role, u"text"_s);
        program.key(title, u"ctrl+Home Down Down"_s);
        QTRY_COMPARE_WITH_TIMEOUT(tree.lineAtCaret(*source).trimmed(), u"<h1 id=\"top\">One</h1>"_s, patience);
        program.key(title, u"Down"_s);
        QTRY_COMPARE_WITH_TIMEOUT(tree.lineAtCaret(*source).trimmed(), u"<p>Two</p>"_s, patience);
        program.type(title, u"x"_s);
        QTRY_COMPARE_WITH_TIMEOUT(tree.lineAtCaret(*source).trimmed(), u"x<p>Two</p>"_s, patience);

        // The outline, which a press on its tab shows, tells its rows.
        const auto tab = tree.find(
            *spoken, [](const SpokenControl &c) { return c.role == u"page tab" && c.name == u"Document Tree"; });
        QVERIFY2(tab, qPrintable(toldBy(tree, *spoken)));
        tree.press(*tab);
        const auto outline = tree.find(
            *spoken, [](const SpokenControl &c) { return c.role.startsWith(u"tree") && c.name == u"Document Tree"; });
        QVERIFY2(outline, qPrintable(toldBy(tree, *spoken)));
        const auto row = tree.find(*outline, [](const SpokenControl &c) { return isRow(c) && !c.name.isEmpty(); });
        QVERIFY2(row, qPrintable(toldBy(tree, *outline)));

        int focusable = 0;
        const QStringList faults = silent(tree, *spoken, focusable);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QVERIFY(focusable > 20);
        qInfo("%d controls of the main window", focusable);
    }

    void theFileTransferSpeaks()
    {
        const SpokenTree tree;
        const ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(u"Zephira - [New Document]"_s));
        program.key(u"Zephira - [New Document]"_s, u"alt+t f"_s);
        QVERIFY(program.waitForWindow(u"Zephira. FTP"_s));
        const auto spoken = tree.program();
        QVERIFY(spoken);
        const auto window =
            tree.find(*spoken, [](const SpokenControl &c) { return c.name.startsWith(u"Zephira. FTP"); });
        QVERIFY2(window, qPrintable(toldBy(tree, *spoken)));
        for (const QString &name : {u"Local folders"_s, u"Local files"_s}) {
            const auto list = tree.find(*window, [&](const SpokenControl &c) { return c.name == name; });
            QVERIFY2(list, qPrintable(toldBy(tree, *window)));
            const auto row = tree.find(*list, [](const SpokenControl &c) { return isRow(c) && !c.name.isEmpty(); });
            QVERIFY2(row, qPrintable(name + u'\n' + toldBy(tree, *list)));
        }
        int focusable = 0;
        const QStringList faults = silent(tree, *window, focusable);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QVERIFY(focusable > 5);
        qInfo("%d controls of the file transfer", focusable);
    }
};

ZEPHIRA_TEST(TstScreenReader)
#include "tst_screenreader.moc"
