// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tools/spelling/checkspelling.h"
#include "tools/spelling/fakespeller.h"
#include "tools/spelling/registerspelling.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString complete = u"Spell Check is complete!"_s;

/// The form over a check of its own.
struct SpellForm {
    TestContext world;
    SpellingBench spelling{world.files, world.settings};
    FormCatalogue forms;
    std::unique_ptr<LivingForm> form;

    SpellForm()
    {
        world.files.contents[u"/app/deps/names.dic"_s] = "p\nb\n";
        spelling.speller.suggested[u"baad"_s] = {u"bad"_s, u"bead"_s};
        tools::registerSpelling(forms, {std::shared_ptr<SpellCheck>(), &spelling.check});
    }

    explicit SpellForm(const QString &text) : SpellForm()
    {
        if (!spelling.check.lexicon().OpenLexicon())
            qFatal("no dictionary");
        spelling.check.start(text);
        form = std::make_unique<LivingForm>(forms, u"SpellChecker1"_s, world);
    }

    SpellCheck &check() { return spelling.check; }
    QStringList suggestions() const
    {
        const auto &list = form->get<QListWidget>(u"lstSuggestions"_s);
        QStringList words;
        for (int row = 0; row < list.count(); ++row)
            words.append(list.item(row)->text());
        return words;
    }
    QString enabled() const
    {
        QStringList names;
        for (const QString &name :
             {u"cmdIgnore"_s, u"cmdIgnoreAll"_s, u"cmdAdd"_s, u"cmdChange"_s, u"cmdChangeAll"_s, u"cmdCancel"_s}) {
            if (form->get<QPushButton>(name).isEnabled())
                names.append(name.mid(3));
        }
        return names.join(u' ');
    }
    /// The marked part of the sentence.
    QString marked() const
    {
        const auto marks = form->get<QTextEdit>(u"txtSentence"_s).extraSelections();
        return marks.size() == 1 ? marks.front().cursor.selectedText() : u"no mark"_s;
    }
};

/// A whole check of the fake editor's text; `answer` is called in place of the form.
struct WholeCheck : SpellForm {
    int questions = 0;

    void run(const QString &text, const std::function<void(SpellCheck &)> &answer = {})
    {
        world.editor.setText(text);
        runAgain(answer);
    }
    void runAgain(const std::function<void(SpellCheck &)> &answer = {})
    {
        world.forms.onOpen = [&](const QString &) {
            if (answer)
                answer(check());
        };
        checkSpelling(world, check());
        QVERIFY(world.prompts.verify());
    }
    void expectEnd(const QString &text = complete) { world.prompts.expect({text}, Answer::Ok); }
};

} // namespace

class TstSpellChecker1 final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aQuestion()
    {
        const SpellForm bench(u"good text. <p>A word is baad <b>word</b>. good"_s);
        const LivingForm &form = *bench.form;
        QCOMPARE(form.value(u"SpellChecker1"_s), u"Spelling"_s);
        QCOMPARE(form.get<QTextEdit>(u"txtSentence"_s).toPlainText(), u"<p>A word is baad <b>word</b>."_s);
        QCOMPARE(bench.marked(), u"A"_s);
        form.press(u"cmdIgnore"_s);
        form.press(u"cmdIgnore"_s);
        QCOMPARE(bench.marked(), u"baad"_s);
        QCOMPARE(form.value(u"txtChange"_s), u"bad"_s);
        QCOMPARE(form.get<QLineEdit>(u"txtChange"_s).selectedText(), u"bad"_s);
        QCOMPARE(form.focus(), u"txtChange"_s);
        QCOMPARE(bench.suggestions(), (QStringList{u"bad"_s, u"bead"_s}));
        QCOMPARE(bench.enabled(), u"Ignore IgnoreAll Add Change ChangeAll Cancel"_s);
        QVERIFY(form.get<QPushButton>(u"cmdChange"_s).isDefault());
    }

    void captions()
    {
        const SpellForm bench(u"baad"_s);
        QStringList captions;
        for (const QString &name :
             {u"cmdIgnore"_s, u"cmdIgnoreAll"_s, u"cmdAdd"_s, u"cmdChange"_s, u"cmdChangeAll"_s, u"cmdCancel"_s})
            captions.append(bench.form->value(name).remove(u'&'));
        QCOMPARE(captions,
                 (QStringList{u"Ignore"_s, u"Ignore All"_s, u"Add"_s, u"Change"_s, u"Change All"_s, u"Cancel"_s}));
    }

    void withoutSuggestions()
    {
        const SpellForm bench(u"xx"_s);
        QCOMPARE(bench.suggestions(), QStringList());
        QCOMPARE(bench.form->value(u"txtChange"_s), u"xx"_s);
        QCOMPARE(bench.enabled(), u"Ignore IgnoreAll Add Cancel"_s);
        bench.form->key(Qt::Key_Return);
        QVERIFY(bench.form->isOpen());
        bench.form->type(u"txtChange"_s, u"x"_s);
        QCOMPARE(bench.enabled(), u"Ignore IgnoreAll Add Change ChangeAll Cancel"_s);
        bench.form->type(u"txtChange"_s, {});
        QCOMPARE(bench.enabled(), u"Ignore IgnoreAll Add Cancel"_s);
    }

    void change()
    {
        SpellForm bench(u"baad baad"_s);
        bench.form->press(u"cmdChange"_s);
        QVERIFY(bench.form->isOpen());
        bench.form->type(u"txtChange"_s, u"other"_s);
        bench.form->key(Qt::Key_Return);
        QVERIFY(!bench.form->isOpen());
        QCOMPARE(bench.check().text(), u"bad other"_s);
    }

    void changeAll()
    {
        SpellForm bench(u"baad good baad"_s);
        bench.form->press(u"cmdChangeAll"_s);
        QVERIFY(!bench.form->isOpen());
        QCOMPARE(bench.check().text(), u"bad good bad"_s);
    }

    void aSuggestion()
    {
        SpellForm bench(u"baad baad"_s);
        auto &list = bench.form->get<QListWidget>(u"lstSuggestions"_s);
        const auto place = [&list](int row) { return list.visualItemRect(list.item(row)).center(); };
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(1));
        QCOMPARE(bench.form->value(u"txtChange"_s), u"bead"_s);
        bench.form->press(u"cmdChange"_s);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(1));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place(1));
        QVERIFY(!bench.form->isOpen());
        QCOMPARE(bench.check().text(), u"bead bead"_s);
    }

    void aSuggestionByKeys()
    {
        SpellForm bench(u"baad"_s);
        bench.form->get<QListWidget>(u"lstSuggestions"_s).setFocus();
        bench.form->key(Qt::Key_Down);
        QCOMPARE(bench.form->value(u"txtChange"_s), u"bead"_s);
        bench.form->key(Qt::Key_Return);
        QCOMPARE(bench.check().text(), u"bead"_s);
    }

    void ignoring()
    {
        SpellForm bench(u"baad baad xx xx"_s);
        bench.form->press(u"cmdIgnore"_s);
        bench.form->press(u"cmdIgnoreAll"_s);
        QCOMPARE(bench.marked(), u"xx"_s);
        bench.form->press(u"cmdIgnoreAll"_s);
        QVERIFY(!bench.form->isOpen());
        QVERIFY(!bench.check().isChanged());
    }

    void adding()
    {
        SpellForm bench(u"baad baad"_s);
        bench.form->press(u"cmdAdd"_s);
        QVERIFY(!bench.form->isOpen());
        QCOMPARE(bench.world.files.contents[u"/app/custom.dic"_s], QByteArray("baad\n"));
    }

    void aFullDisk()
    {
        SpellForm bench(u"baad word"_s);
        bench.world.files.unwritable[u"/app/custom.dic"_s] = Error{Error::Code::Unwritable, u"The disk is full."_s};
        bool isBusy = true;
        bench.world.prompts.expect({u"The disk is full."_s, u"Spelling"_s, Question::Icon::Exclamation}, Answer::Ok,
                                   [&isBusy] { isBusy = QGuiApplication::overrideCursor() != nullptr; });
        bench.form->type(u"txtChange"_s, u"bid"_s);
        bench.form->press(u"cmdAdd"_s);
        // The message isn't shown under the pointer of a program at work, and the question is as it was.
        QVERIFY(!isBusy);
        QVERIFY(bench.form->isOpen());
        QCOMPARE(bench.marked(), u"baad"_s);
        bench.form->press(u"cmdChange"_s);
        QCOMPARE(bench.check().text(), u"bid word"_s);
    }

    void cancelling_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }

    void cancelling()
    {
        QFETCH(bool, byKey);
        SpellForm bench(u"baad baad"_s);
        bench.form->press(u"cmdChange"_s);
        if (byKey)
            bench.form->key(Qt::Key_Escape);
        else
            bench.form->press(u"cmdCancel"_s);
        QVERIFY(!bench.form->isOpen());
        QCOMPARE(bench.check().text(), u"bad baad"_s);
    }

    void oneDictionary()
    {
        const SpellForm bench(u"baad"_s);
        const auto &list = bench.form->get<QComboBox>(u"cboDictionary"_s);
        QCOMPARE(list.currentText(), u"American English (en_US)"_s);
        QVERIFY(!list.isEnabled());
    }

    void anotherDictionary()
    {
        SpellForm bench;
        bench.spelling.dictionaries = {{u"de_DE"_s, u"/dict/de_DE"_s}, {u"en_US"_s, u"/dict/en_US"_s}};
        QVERIFY(bench.check().lexicon().OpenLexicon().ok());
        bench.check().start(u"gut baad"_s);
        bench.form = std::make_unique<LivingForm>(bench.forms, u"SpellChecker1"_s, bench.world);
        auto &list = bench.form->get<QComboBox>(u"cboDictionary"_s);
        QVERIFY(list.isEnabled());
        QCOMPARE(list.currentIndex(), 1);
        QCOMPARE(bench.marked(), u"gut"_s);
        list.setFocus();
        bench.form->key(Qt::Key_Up);
        QCOMPARE(bench.marked(), u"baad"_s);
        QCOMPARE(bench.world.settings.GetSetting(UserSetting::SpellingDictionary), u"de_DE"_s);
        // One that can't be opened isn't chosen.
        bench.spelling.speller.failure = Error{Error::Code::Unreadable, u"no"_s};
        bench.world.prompts.expectTell(u"no"_s, u"Spelling"_s, Question::Icon::Exclamation);
        list.setFocus();
        bench.form->key(Qt::Key_Down);
        QCOMPARE(list.currentIndex(), 0);
        QCOMPARE(bench.marked(), u"baad"_s);
    }

    void aVeryLongWord()
    {
        SpellForm bench(QString(1000, u'x') + u" good"_s);
        QCOMPARE(bench.form->get<QTextEdit>(u"txtSentence"_s).toPlainText().size(), 61 + 5);
        QCOMPARE(bench.form->value(u"txtChange"_s), QString());
        // The list of the user's words couldn't hold it.
        QCOMPARE(bench.enabled(), u"Ignore IgnoreAll Cancel"_s);
        bench.form->type(u"txtChange"_s, u"short"_s);
        bench.form->press(u"cmdChange"_s);
        QCOMPARE(bench.check().text(), u"short good"_s);
    }

    void withoutAQuestion()
    {
        const SpellForm bench(u"good"_s);
        QCOMPARE(bench.enabled(), u"Cancel"_s);
    }

    void theWholeText()
    {
        WholeCheck bench;
        bench.expectEnd();
        bench.run(u"baad text"_s, [](SpellCheck &check) { check.change(u"bad"_s); });
        QCOMPARE(bench.world.forms.modal, QStringList{u"SpellChecker1"_s});
        QCOMPARE(bench.world.editor.text(), u"bad text"_s);
    }

    void theSelection()
    {
        WholeCheck bench;
        bench.world.editor.setText(u"baad <baad> baad"_s);
        bench.world.editor.selectPart(u"<baad>"_s);
        bench.expectEnd(u"Spell Check of selected text is complete!"_s);
        bench.runAgain([](SpellCheck &check) { check.changeAll(u"bad"_s); });
        QCOMPARE(bench.world.editor.text(), u"baad <bad> baad"_s);
        QCOMPARE(bench.world.editor.caretOffset(), 10);
        QCOMPARE(bench.world.editor.selLength(), 0);
    }

    void withoutAQuestionNothingOpens()
    {
        WholeCheck bench;
        bench.expectEnd();
        bench.run(u"good text"_s);
        QCOMPARE(bench.world.forms.modal, QStringList());
        bench.expectEnd();
        bench.run({});
        QCOMPARE(bench.world.forms.modal, QStringList());
    }

    void anUnchangedTextIsNotWritten()
    {
        WholeCheck bench;
        bench.world.editor.setText(u"baad baad"_s);
        int changes = 0;
        bench.world.editor.onChange = [&changes] { ++changes; };
        bench.expectEnd();
        bench.runAgain([](SpellCheck &check) { check.ignoreAll(); });
        QCOMPARE(changes, 0);
        // Two changes are one write.
        bench.expectEnd();
        bench.runAgain([](SpellCheck &check) {
            check.change(u"x"_s);
            check.change(u"y"_s);
        });
        QCOMPARE(changes, 1);
        QCOMPARE(bench.world.editor.text(), u"x y"_s);
    }

    void aCancelledCheckIsCompleteToo()
    {
        WholeCheck bench;
        bench.expectEnd();
        bench.run(u"baad baad"_s, [](SpellCheck &check) { check.change(u"bad"_s); });
        QCOMPARE(bench.world.editor.text(), u"bad baad"_s);
        QVERIFY(!bench.check().isAsking());
    }

    void withoutADictionary()
    {
        WholeCheck bench;
        bench.spelling.dictionaries.clear();
        bench.world.prompts.expectTell(u"There is no spelling dictionary. Please install the package hunspell-en-us."_s,
                                       {}, Question::Icon::Exclamation);
        bench.run(u"baad"_s);
        QCOMPARE(bench.world.forms.modal, QStringList());
        QCOMPARE(bench.world.editor.text(), u"baad"_s);
    }

    void badListsAreToldOnce()
    {
        WholeCheck bench;
        bench.world.files.contents.erase(u"/app/deps/names.dic"_s);
        bench.world.files.contents[u"/app/custom.dic"_s] = "\xff\n";
        bench.world.prompts.expectTell(
            u"The list of names /app/deps/names.dic is missing, so tags and keywords count as "
            "unknown words.\n\nNot every line of the file /app/custom.dic is a word. "
            "Unused lines: 1; the first is line 1."_s,
            {}, Question::Icon::Exclamation);
        bench.expectEnd();
        bench.run(u"good"_s);
        bench.expectEnd();
        bench.run(u"good"_s);
    }
};

ZEPHIRA_TEST(TstSpellChecker1)

#include "tst_spellchecker1.moc"
