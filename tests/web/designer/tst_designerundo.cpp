// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Typing and commands share one undo history.
class TstDesignerUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void typingIsOneStep();
    void keys();
    void newChangeEndsRedo();
    void selectionComesBack();
    void randomWork_data();
    void randomWork();

private:
    void selectAtRandom(QRandomGenerator &random);
    void doSomething(QRandomGenerator &random);
    /// Runs undo or redo until the page differs from `page`.
    void turn(DesignerCommand command, const QString &page)
    {
        do
            m_bench->run(command);
        while (m_bench->body() == page && m_bench->status(command) == DesignerStatus::Enabled);
    }
    /// Both pages, starting shortly before their first difference.
    QString difference(const QString &way, qsizetype step, const QString &expected)
    {
        const QString body = m_bench->body();
        const auto differing = std::mismatch(body.begin(), body.end(), expected.begin(), expected.end());
        const qsizetype from = std::max<qsizetype>(0, differing.first - body.begin() - 100);
        return u"%1 of step %2\n%3\ninstead of\n%4"_s.arg(way).arg(step).arg(body.mid(from, 400),
                                                                             expected.mid(from, 400));
    }

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerUndo::typingIsOneStep()
{
    m_bench->show(u"<p>a|</p>"_s);
    m_bench->type(u"bcd"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>abcd</p>"_s, DesignerBench::patience);
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->text(), u"<p>a|</p>"_s);
    QVERIFY(!m_bench->designer.isDirty());
    m_bench->run(DesignerCommand::Redo);
    QCOMPARE(m_bench->text(), u"<p>abcd|</p>"_s);
}

void TstDesignerUndo::keys()
{
    m_bench->show(u"<p>[a]</p>"_s);
    m_bench->press(Qt::Key_B, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p><b>a</b></p>"_s, DesignerBench::patience);
    m_bench->press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>a</p>"_s, DesignerBench::patience);
    m_bench->press(Qt::Key_Y, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p><b>a</b></p>"_s, DesignerBench::patience);
    m_bench->press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>a</p>"_s, DesignerBench::patience);
    m_bench->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p><b>a</b></p>"_s, DesignerBench::patience);
}

void TstDesignerUndo::newChangeEndsRedo()
{
    m_bench->show(u"<p>[a]</p>"_s);
    m_bench->run(DesignerCommand::Bold);
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->status(DesignerCommand::Redo), 3);
    m_bench->run(DesignerCommand::Italic);
    QCOMPARE(m_bench->status(DesignerCommand::Redo), 1);
}

void TstDesignerUndo::selectionComesBack()
{
    m_bench->show(u"<p>a[b]c</p><p>d</p>"_s);
    m_bench->run(DesignerCommand::Bold);
    m_bench->ask(u"getSelection().collapse(document.body.lastChild, 0); null"_s);
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->text(), u"<p>a[b]c</p><p>d</p>"_s);
}

void TstDesignerUndo::randomWork_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

/// Selects a random part of the page's text, or a whole element.
void TstDesignerUndo::selectAtRandom(QRandomGenerator &random)
{
    m_bench->ask(uR"js(((a, b, c, d) => {
        const all = [...document.body.querySelectorAll('img,hr')];
        if (d % 6 === 0 && all.length > 0) {
            const range = new Range();
            range.selectNode(all[a % all.length]);
            getSelection().removeAllRanges();
            getSelection().addRange(range);
            return;
        }
        const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        const texts = [];
        while (walker.nextNode())
            texts.push(walker.currentNode);
        if (texts.length === 0) {
            getSelection().collapse(document.body, 0);
            return;
        }
        const begin = texts[a % texts.length];
        const end = d % 3 === 0 ? texts[b % texts.length] : begin;
        getSelection().setBaseAndExtent(begin, c % (begin.length + 1), end, b % (end.length + 1));
    })(%1, %2, %3, %4))js"_s.arg(random.bounded(10000))
                     .arg(random.bounded(10000))
                     .arg(random.bounded(10000))
                     .arg(random.bounded(10000)));
}

void TstDesignerUndo::doSomething(QRandomGenerator &random)
{
    using enum DesignerCommand;
    static const std::pair<DesignerCommand, QVariant> work[] = {
        {Bold, {}},
        {Italic, {}},
        {Underline, {}},
        {OrderedList, {}},
        {UnorderedList, {}},
        {Indent, {}},
        {Outdent, {}},
        {JustifyCenter, {}},
        {JustifyRight, {}},
        {SetFontName, u"Arial"_s},
        {SetFontSize, 5},
        {SetForeColor, u"#00ff00"_s},
        {SetBlockFormat, u"Heading 1"_s},
        {SetBlockFormat, u"Normal"_s},
        {SetBlockFormat, u"Definition"_s},
        {Delete, {}},
        {Hyperlink, u"x"_s},
        {Unlink, {}},
        {Image, u"x.gif"_s},
        {InsertTable, QVariantMap{{u"NumRows"_s, 2}, {u"NumCols"_s, 2}}},
        {InsertRow, {}},
        {InsertColumn, {}},
        {InsertCell, {}},
        {DeleteRows, {}},
        {DeleteColumns, {}},
        {DeleteCells, {}},
        {MergeCells, {}},
        {SplitCell, {}},
        {AbsolutePosition, {}},
        {BringToFront, {}},
        {SendBelowText, {}},
        {LockElement, {}},
    };
    const int choice = random.bounded(static_cast<int>(std::size(work)) + 3);
    if (choice < static_cast<int>(std::size(work)))
        m_bench->run(work[choice].first, work[choice].second);
    else if (choice == static_cast<int>(std::size(work)))
        m_bench->designer.pasteHtml(u"<p>new <b>block</b></p>"_s);
    else if (choice == static_cast<int>(std::size(work)) + 1)
        m_bench->designer.pasteHtml(u"<i>inline</i><% code %>"_s);
    else
        m_bench->run(Cut);
}

void TstDesignerUndo::randomWork()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    m_bench->load(u"<h1>Head</h1><p>one <b>two</b> three</p><ul><li>a</li><li>b<ul><li>c</li></ul></li></ul>"
                  "<table><tr><td>1</td><td rowspan=2>2</td></tr><tr><td>3</td></tr></table>bare <i>text</i><hr>"
                  "<p>last <img src=\"x\"></p><div style=\"position:absolute;top:9px\">layer</div>"_s);
    QStringList pages{m_bench->body()};
    for (int step = 0; step < 40; ++step) {
        selectAtRandom(random);
        doSomething(random);
        if (const QString page = m_bench->body(); page != pages.last())
            pages.append(page);
    }
    QVERIFY(pages.size() > 5);
    // A command may change the page but not its markup, by splitting a text node: such a step has no visible effect.
    for (qsizetype i = pages.size() - 2; i >= 0; --i) {
        turn(DesignerCommand::Undo, pages[i + 1]);
        QVERIFY2(m_bench->body() == pages[i], qPrintable(difference(u"undo"_s, i, pages[i])));
    }
    QVERIFY(!m_bench->designer.isDirty());
    for (qsizetype i = 1; i < pages.size(); ++i) {
        turn(DesignerCommand::Redo, pages[i - 1]);
        QVERIFY2(m_bench->body() == pages[i], qPrintable(difference(u"redo"_s, i, pages[i])));
    }
}

ZEPHIRA_TEST(TstDesignerUndo)
#include "tst_designerundo.moc"
