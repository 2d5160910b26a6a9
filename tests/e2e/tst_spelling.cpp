// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

/// A program that shows a page.
struct OpenPage {
    ProgramFolder folder;
    QString path;
    std::unique_ptr<RunningProgram> program;

    void open(const QByteArray &page)
    {
        path = folder.write(u"page.html"_s, page);
        program = std::make_unique<RunningProgram>(folder, QStringList{path});
        QVERIFY(program->waitForWindow(caption()));
    }
    QString caption() const { return RunningProgram::captionOf(path); }
    bool isSavedAs(const QByteArray &page) const
    {
        program->key(caption(), u"ctrl+s"_s);
        return QTest::qWaitFor([&] { return ProgramFolder::read(path) == page; }, patience);
    }
    void end()
    {
        program->close(caption());
        QCOMPARE(program->waitForEnd(), 0);
    }
};

} // namespace

/// Spelling with the installed dictionary, in the real program.
class TstSpelling final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSuggestionIsChosenFromTheMenu()
    {
        OpenPage page;
        page.open("mispelled");
        page.program->key(page.caption(), u"ctrl+a Menu"_s);
        page.program->key(page.caption(), u"Down Return"_s);
        QVERIFY(page.isSavedAs("misspelled"));
        page.end();
    }
};

ZEPHIRA_TEST(TstSpelling)

#include "tst_spelling.moc"
