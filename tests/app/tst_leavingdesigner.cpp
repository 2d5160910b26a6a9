// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "commands/commandrouter.h"
#include "commands/palettetable.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QClipboard>
#include <QRandomGenerator>
#include <QTimer>

#include <algorithm>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QByteArray source("<!DOCTYPE html>\r\n<html><head><title>t</title></head>\r\n<body><p>old</p></body></html>\r\n");

/// What a user or a script may do while the designer is being left.
enum class Act { Type, Paste, Insert, Save, SaveAs, Undo, QuickTag, Close, ReadByName };
constexpr int actCount = static_cast<int>(Act::ReadByName) + 1;
constexpr const char *actNames[] = {"type", "paste", "insert", "save", "save as", "undo", "quick tag", "close", "read"};

/// The palette's button for a line break.
const QuickTag &breakButton()
{
    for (const PaletteToolbar &toolbar : paletteToolbars()) {
        const auto tag = std::ranges::find(toolbar.buttons, u"break"_s, &QuickTag::key);
        if (tag != toolbar.buttons.end())
            return *tag;
    }
    qFatal("the palette has no line break");
}

/// One change from the designer to the code view, with acts at random moments of it.
struct Run {
    WebBench &bench;
    int number = 0;
    /// What has to be in the text, once each, when all is done.
    QStringList wanted = {};
    int breaks = 0;
    int done = 0;
    bool isUndone = false;

    QString word(QStringView stem) const { return u"%1%2x"_s.arg(stem).arg(number); }
    QString text() const { return bench.window->rt().text(); }

    void add(Act act, int after)
    {
        if (act == Act::SaveAs) {
            const auto &document = bench.window->context().document;
            bench.prompts.expectFile({u"Save a document..."_s,
                                      languageRow(document.languageRow())->saveFilter.toString(),
                                      document.projectPath(), true, document.commonDialogFile()},
                                     bench.folder() + u"/site/as%1.html"_s.arg(number));
        }
        if (act == Act::Close) {
            bench.prompts.expect({u"Document: "_s + bench.window->docTitle()
                                      + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                                  u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                                 Answer::Cancel, [this] { QVERIFY(text().contains(word(u"word"))); });
        }
        QTimer::singleShot(after, bench.window.get(), [this, act] {
            run(act);
            ++done;
        });
    }

    void run(Act act)
    {
        switch (act) {
        case Act::Type:
            wanted.append(word(u"typed"));
            QTest::keyClicks(bench.keyboardOf(u"rt"_s), word(u"typed"));
            break;
        case Act::Paste:
            wanted.append(word(u"pasted"));
            QApplication::clipboard()->setText(word(u"pasted"));
            bench.choose(u"paste"_s);
            break;
        case Act::Insert:
            wanted.append(word(u"inserted"));
            bench.window->InsertAtCaret(word(u"inserted"));
            break;
        case Act::Save:
            bench.choose(u"save"_s);
            QCOMPARE(QString::fromUtf8(WindowBench::read(bench.window->docPath())), text());
            break;
        case Act::SaveAs:
            bench.choose(u"saveas"_s);
            QCOMPARE(QString::fromUtf8(WindowBench::read(bench.window->docPath())), text());
            break;
        case Act::Undo:
            isUndone = true;
            bench.choose(u"undo"_s);
            break;
        case Act::QuickTag:
            ++breaks;
            bench.window->router().runTag(breakButton());
            break;
        case Act::Close:
            QVERIFY(!bench.window->close());
            break;
        case Act::ReadByName:
            QVERIFY(bench.window->doSave());
            QVERIFY(WindowBench::read(bench.window->docPath()).contains(word(u"word").toUtf8()));
            break;
        }
    }
};

} // namespace

/// The change from the designer to the code view takes a moment. Whatever is done meanwhile finds the designer's text
/// in the code view already.
class TstLeavingDesigner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLost();
    void undoTakesBackOnlyWhatWasTouched();
};

void TstLeavingDesigner::nothingIsLost()
{
    constexpr int runs = 200;
    constexpr int latest = 60;
    QRandomGenerator random(11);
    WebBench bench(u"page.html"_s, source);
    for (int number = 0; number < runs; ++number) {
        // Undo and close come alone: they are judged by the text that they find, and a second act would change it.
        const auto act = Act(random.bounded(actCount));
        const bool isAlone = act == Act::Undo || act == Act::Close;
        const auto other = isAlone ? act : Act(random.bounded(static_cast<int>(Act::SaveAs)));
        const QByteArray name = QByteArray("run ") + QByteArray::number(number) + ": " + actNames[static_cast<int>(act)]
            + ", " + actNames[static_cast<int>(other)];
        QVERIFY2(bench.design(), name);
        Run run{bench, number};
        bench.paste(run.word(u"word"));
        const qsizetype breaks = bench.window->rt().text().count(u"<br>"_s);
        run.add(act, random.bounded(latest));
        if (!isAlone)
            run.add(other, random.bounded(latest));
        bench.select(1);
        QVERIFY2(waitUntil([&] { return run.done == (isAlone ? 1 : 2); }, WebBench::patience), name);
        QCOMPARE(bench.tabs().currentIndex(), 0);
        if (run.isUndone) {
            // Only the designer's text was taken back, and redo brings it again.
            QVERIFY2(!run.text().contains(run.word(u"word")), name);
            bench.choose(u"redo"_s);
        }
        const QString text = run.text();
        QVERIFY2(text.count(run.word(u"word")) == 1, name + ": " + text.toUtf8());
        for (const QString &wanted : std::as_const(run.wanted))
            QVERIFY2(text.count(wanted) == (act == other ? 2 : 1),
                     name + ": " + wanted.toUtf8() + ": " + text.toUtf8());
        QCOMPARE(text.count(u"<br>"_s), breaks + run.breaks);
        bench.choose(u"save"_s);
        QCOMPARE(QString::fromUtf8(WindowBench::read(bench.window->docPath())), text);
        QVERIFY2(bench.prompts.verify(), name);
    }
}

/// The code view keeps its place, and the author's spelling of everything else.
void TstLeavingDesigner::undoTakesBackOnlyWhatWasTouched()
{
    QString page;
    for (int line = 0; line < 300; ++line)
        page += u"<P CLASS=a>line %1\r\n"_s.arg(line);
    WebBench bench(u"page.html"_s, page.toUtf8());
    CodeMax &editor = bench.window->rt();
    const CodeMaxRange caret{200, 14, 200, 14};
    editor.select(caret);
    editor.engine().send(QsciScintillaBase::SCI_SETFIRSTVISIBLELINE, 190);
    const auto firstLine = [&] { return editor.engine().send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE); };
    const auto first = firstLine();
    QVERIFY(first > 100);
    QVERIFY(bench.design());
    bench.paste(u"word"_s);
    bench.select(1);
    QVERIFY(waitUntil([&] { return bench.tabs().currentIndex() == 0 && editor.text() != page; }, WebBench::patience));
    QString edited = page;
    edited.replace(u"line 200"_s,
                   u"linword"
                   "e 200"_s);
    QCOMPARE(editor.text(), edited);
    QCOMPARE(editor.selection(false), (CodeMaxRange{200, 18, 200, 18}));
    QCOMPARE(firstLine(), first);
    bench.choose(u"undo"_s);
    QCOMPARE(editor.text(), page);
    QVERIFY(!editor.canUndo());
    bench.choose(u"redo"_s);
    QCOMPARE(editor.text(), edited);
}

ZEPHIRA_TEST(TstLeavingDesigner)
#include "tst_leavingdesigner.moc"
