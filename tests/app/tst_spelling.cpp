// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The real window with a text, and a dictionary that knows a few words.
struct SpellingWindow : WindowBench {
    SpellingWindow()
    {
        spelling.speller.suggested[u"baad"_s] = {u"bad"_s, u"bead"_s, u"b & d"_s};
        spelling.speller.suggested[u"goood"_s] = {u"good"_s};
    }

    void open(const QString &text)
    {
        start().show();
        window->rt().setText(text);
    }

    void select(const QString &part) const
    {
        const int at = static_cast<int>(window->rt().text().indexOf(part));
        QVERIFY(at >= 0);
        window->rt().select({0, at, 0, at + static_cast<int>(part.size())});
    }

    /// Clicks with the right button into the first selected characters; true if the menu of suggestions appears.
    bool rightClick() const
    {
        QWidget *viewport = window->rt().viewport();
        const QPoint place(20, 20);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, viewport->mapToGlobal(place));
        QCoreApplication::sendEvent(viewport, &event);
        return menu().isVisible();
    }
    QMenu &menu() const { return *find<QMenu>(u"mnuspell"_s); }
    bool ownMenuShows() const
    {
        const auto *own = window->rt().findChild<QMenu *>(u"editorMenu"_s);
        return own && own->isVisible();
    }
    void closeMenus() const
    {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// The visible rows as "name caption", with what differs from a plain entry.
    QStringList rows() const
    {
        QStringList rows;
        const QList<QAction *> actions = menu().actions();
        for (const QAction *action : actions) {
            if (!action->isVisible())
                continue;
            rows.append(action->objectName() + u' ' + action->text()
                        + (action->isSeparator()      ? u" (line)"_s
                               : !action->isEnabled() ? u" (closed)"_s
                                                      : QString()));
        }
        return rows;
    }
    void expectComplete(const QString &text = u"Spell Check is complete!"_s) { prompts.expect({text}, Answer::Ok); }
};

/// What the user does in the form when it opens.
void inForm(QObject &window, const std::function<void(QWidget &)> &act)
{
    QTimer::singleShot(0, &window, [act] {
        QWidget *form = QApplication::activeModalWidget();
        QVERIFY(form && form->objectName() == u"SpellChecker1");
        act(*form);
    });
}

void press(QWidget &form, const QString &button)
{
    QTest::mouseClick(form.findChild<QPushButton *>(button), Qt::LeftButton);
}

const QString title = u"sug_0 - Spelling Suggestions - (closed)"_s;

} // namespace

/// The spelling check and the suggestions in the real window.
class TstSpelling final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTextIsOneUndoStep()
    {
        SpellingWindow bench;
        bench.open(u"<p>baad text goood</p>"_s);
        inForm(*bench.window, [](QWidget &form) {
            press(form, u"cmdChange"_s);
            press(form, u"cmdChange"_s);
        });
        bench.expectComplete();
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        CodeMax &rt = bench.window->rt();
        QCOMPARE(rt.text(), u"<p>bad text good</p>"_s);
        QVERIFY(bench.window->docModified());
        rt.undo();
        QCOMPARE(rt.text(), u"<p>baad text goood</p>"_s);
        rt.redo();
        QCOMPARE(rt.text(), u"<p>bad text good</p>"_s);
    }

    void theSelection()
    {
        SpellingWindow bench;
        bench.open(u"baad [baad] baad"_s);
        bench.select(u"[baad]"_s);
        inForm(*bench.window, [](QWidget &form) { press(form, u"cmdChangeAll"_s); });
        bench.expectComplete(u"Spell Check of selected text is complete!"_s);
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QCOMPARE(bench.window->rt().text(), u"baad [bad] baad"_s);
        bench.window->rt().undo();
        QCOMPARE(bench.window->rt().text(), u"baad [baad] baad"_s);
    }

    void cancelKeepsTheChangesMadeSoFar()
    {
        SpellingWindow bench;
        bench.open(u"baad goood baad"_s);
        inForm(*bench.window, [](QWidget &form) {
            press(form, u"cmdChange"_s);
            press(form, u"cmdCancel"_s);
        });
        bench.expectComplete();
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QCOMPARE(bench.window->rt().text(), u"bad goood baad"_s);
        bench.window->rt().undo();
        QCOMPARE(bench.window->rt().text(), u"baad goood baad"_s);
    }

    void withNothingChangedTheDocumentStaysUnmodified()
    {
        SpellingWindow bench;
        const QString file = bench.write(u"a.txt"_s, "baad text\n");
        bench.start(file);
        inForm(*bench.window, [](QWidget &form) { QTest::keyClick(&form, Qt::Key_Escape); });
        bench.expectComplete();
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QVERIFY(!bench.window->docModified());
        QVERIFY(!bench.window->rt().canUndo());
    }

    void addedWordsAreInTheProgramFolder()
    {
        SpellingWindow bench;
        bench.open(u"Zephira baad"_s);
        inForm(*bench.window, [](QWidget &form) {
            press(form, u"cmdAdd"_s);
            press(form, u"cmdIgnore"_s);
        });
        bench.expectComplete();
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QCOMPARE(WindowBench::read(bench.appPath() + u"/custom.dic"_s), QByteArray("Zephira\n"));
        bench.select(u"Zephira"_s);
        QVERIFY(!bench.rightClick());
        bench.closeMenus();
    }

    void aFileOfWordsThatCantBeWritten()
    {
        SpellingWindow bench;
        const QString file = bench.write(u"app/custom.dic"_s, "mine\n");
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
        bench.open(u"baad mine"_s);
        inForm(*bench.window, [](QWidget &form) {
            press(form, u"cmdAdd"_s);
            // The question stays, and can be answered otherwise.
            press(form, u"cmdChange"_s);
        });
        bench.prompts.expectTell(u"The file \"%1\" could not be saved: it is read-only."_s.arg(file), u"Spelling"_s,
                                 Question::Icon::Exclamation);
        bench.expectComplete();
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QCOMPARE(bench.window->rt().text(), u"bad mine"_s);
        QCOMPARE(WindowBench::read(file), QByteArray("mine\n"));
    }

    void rubbishInsteadOfWords()
    {
        SpellingWindow bench;
        const QByteArray rubbish = QByteArray("\x7f"
                                              "ELF\0\xff\n\n\x80\n",
                                              10)
                                       .repeated(1000)
            + "mine";
        const QString file = bench.write(u"app/custom.dic"_s, rubbish);
        bench.open(u"mine baad"_s);
        inForm(*bench.window, [](QWidget &form) { press(form, u"cmdAdd"_s); });
        bench.prompts.expectTell(
            u"Not every line of the file %1 is a word. Unused lines: 2000; the first is line 1."_s.arg(file), {},
            Question::Icon::Exclamation);
        bench.expectComplete();
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QCOMPARE(WindowBench::read(file), rubbish + "\nbaad\n");
    }

    void inVisualModeNothingIsChecked()
    {
        SpellingWindow bench;
        bench.start(bench.write(u"a.html"_s, "baad"));
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(2);
        bench.prompts.expectTell(u"Sorry these tools can only be used in Code View"_s);
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QCOMPARE(bench.spelling.loads, 0);
        QVERIFY(bench.prompts.verify());
    }

    void suggestions()
    {
        SpellingWindow bench;
        bench.open(u"a baad goood text"_s);
        bench.select(u"baad"_s);
        QVERIFY(bench.rightClick());
        QVERIFY(!bench.ownMenuShows());
        QCOMPARE(bench.rows(),
                 (QStringList{title, u"sug_1 bad"_s, u"sug_2 bead"_s, u"sug_3 b && d"_s, u"sug_4 - (line)"_s}));
        bench.find<QAction>(u"sug_0"_s)->trigger();
        QCOMPARE(bench.window->rt().text(), u"a baad goood text"_s);
        bench.find<QAction>(u"sug_3"_s)->trigger();
        QCOMPARE(bench.window->rt().text(), u"a b & d goood text"_s);
        QCOMPARE(bench.window->rt().selText(), QString());
        bench.window->rt().undo();
        QCOMPARE(bench.window->rt().text(), u"a baad goood text"_s);
        bench.closeMenus();

        // The rows are used again: fewer of them, and the line in place of a suggestion.
        bench.select(u"goood"_s);
        QVERIFY(bench.rightClick());
        QCOMPARE(bench.rows(), (QStringList{title, u"sug_1 good"_s, u"sug_2 - (line)"_s}));
        bench.closeMenus();
        bench.select(u"baad"_s);
        QVERIFY(bench.rightClick());
        QCOMPARE(bench.rows(),
                 (QStringList{title, u"sug_1 bad"_s, u"sug_2 bead"_s, u"sug_3 b && d"_s, u"sug_4 - (line)"_s}));
        QTest::keyClick(&bench.menu(), Qt::Key_Down);
        QTest::keyClick(&bench.menu(), Qt::Key_Return);
        QCOMPARE(bench.window->rt().text(), u"a bad goood text"_s);
        QCOMPARE(bench.spelling.loads, 1);
    }

    void aWordWithoutSuggestions()
    {
        SpellingWindow bench;
        bench.open(u"xyz"_s);
        bench.select(u"xyz"_s);
        QVERIFY(bench.rightClick());
        QCOMPARE(bench.rows(), (QStringList{title, u"sug_1 - (line)"_s}));
        bench.closeMenus();
    }

    void otherClicksAreLeftToTheControl_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::newRow("nothing selected") << QString();
        QTest::newRow("a correct word") << u"good"_s;
        QTest::newRow("correct words") << u"good text"_s;
        QTest::newRow("16 characters") << u"baadbaadbaadbaad"_s;
        QTest::newRow("no word") << u" 12 "_s;
    }

    void otherClicksAreLeftToTheControl()
    {
        QFETCH(QString, selected);
        SpellingWindow bench;
        bench.open(u"good text 12 baadbaadbaadbaad"_s);
        bench.select(selected);
        QVERIFY(!bench.rightClick());
        QVERIFY(bench.ownMenuShows());
        bench.closeMenus();
        QCOMPARE(bench.spelling.loads, selected.isEmpty() || selected.size() > 15 ? 0 : 1);
    }

    void fifteenCharactersAreChecked()
    {
        SpellingWindow bench;
        bench.open(u"baadbaadbaadbaa d"_s);
        bench.select(u"baadbaadbaadbaa"_s);
        QVERIFY(bench.rightClick());
        bench.closeMenus();
    }

    void withoutADictionaryTheClickIsLeftToTheControl()
    {
        SpellingWindow bench;
        bench.spelling.dictionaries.clear();
        bench.open(u"baad"_s);
        bench.select(u"baad"_s);
        QVERIFY(!bench.rightClick());
        QVERIFY(bench.ownMenuShows());
        bench.closeMenus();
        bench.prompts.expectTell(u"There is no spelling dictionary. Please install the package hunspell-en-us."_s, {},
                                 Question::Icon::Exclamation);
        bench.click(u"Toolbar_0"_s, u"spell"_s);
        QVERIFY(bench.prompts.verify());
        QCOMPARE(bench.window->rt().text(), u"baad"_s);
    }

    /// The dictionary is loaded at the first use, so that neither the start nor any key waits for it.
    void keysDontLoadTheDictionary()
    {
        SpellingWindow bench;
        bench.open({});
        QTest::keyClicks(&bench.window->rt(), u"baad goood "_s);
        QCOMPARE(bench.window->rt().text(), u"baad goood "_s);
        QCOMPARE(bench.spelling.loads, 0);
    }
};

ZEPHIRA_TEST(TstSpelling)

#include "tst_spelling.moc"
