// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tools/plaintextpage.h"
#include "tools/registerforms.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString title = u"Text to HTML Wizard"_s;
const QString input = u"/texts/a.txt"_s;
const QString output = u"/pages/a.html"_s;
const Question openQuestion{u"Do you wish to open this file?"_s, {}, Question::Icon::None, Question::Buttons::YesNo};

struct Wizard {
    TestContext world;
    LivingForm form;

    Wizard() : form(catalogue(), u"frmthcon"_s, world) { world.files.contents[input] = "one\ntwo <b>\n"; }

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        tools::registerForms(forms, {});
        return forms;
    }

    void fill(const QString &from, const QString &to) const
    {
        form.type(u"Text1"_s, from);
        form.type(u"Text2"_s, to);
    }
};

} // namespace

class TstFrmTextWizard final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const Wizard wizard;
        QCOMPARE(wizard.form.value(u"Text1"_s), u"input"_s);
        QCOMPARE(wizard.form.value(u"Text2"_s), u"output"_s);
        QCOMPARE(wizard.form.value(u"Text3"_s), u"Web Page Title"_s);
        QCOMPARE(wizard.form.value(u"bgcolor"_s), QString());
        QCOMPARE(wizard.form.value(u"textcolor"_s), QString());
        QVERIFY(wizard.form.get<QPushButton>(u"Command1"_s).isDefault());
    }

    void withoutNames_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::newRow("as at first") << u"input"_s << u"output"_s;
        QTest::newRow("no input") << QString() << output;
        QTest::newRow("no output") << input << QString();
        QTest::newRow("the first input") << u"input"_s << output;
        QTest::newRow("the first output") << input << u"output"_s;
    }

    void withoutNames()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        Wizard wizard;
        wizard.form.set(u"Text1"_s, from);
        wizard.form.set(u"Text2"_s, to);
        wizard.world.prompts.expectTell(u"Woops, you didnt enter file names..."_s);
        wizard.form.press(u"Command1"_s);
        QVERIFY(wizard.world.prompts.verify());
        QVERIFY(wizard.world.files.log.isEmpty());
        QVERIFY(wizard.form.isOpen());
    }

    void converted_data()
    {
        QTest::addColumn<bool>("opened");
        QTest::newRow("opened") << true;
        QTest::newRow("not opened") << false;
    }

    void converted()
    {
        QFETCH(bool, opened);
        Wizard wizard;
        wizard.fill(input, output);
        wizard.form.type(u"Text3"_s, u"My page"_s);
        wizard.form.type(u"bgcolor"_s, u"#ffffee"_s);
        wizard.form.type(u"textcolor"_s, u"navy"_s);
        wizard.world.prompts.expect(openQuestion, opened ? Answer::Yes : Answer::No);
        wizard.form.press(u"Command1"_s);
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.world.files.contents[output],
                 plainTextPage(u"one\ntwo <b>\n"_s,
                               {.title = u"My page"_s, .backColour = u"#ffffee"_s, .textColour = u"navy"_s}));
        QCOMPARE(wizard.world.document.opened, opened ? QStringList{output} : QStringList());
        QVERIFY(wizard.form.isOpen());
    }

    void whatIsEmptyHasADefault()
    {
        Wizard wizard;
        wizard.fill(input, output);
        wizard.form.set(u"Text3"_s, {});
        wizard.world.prompts.expect(openQuestion, Answer::No);
        wizard.form.key(Qt::Key_Return);
        QCOMPARE(wizard.world.files.contents[output], plainTextPage(u"one\ntwo <b>\n"_s, {}));
    }

    void aNameWithoutAFolder()
    {
        Wizard wizard;
        wizard.world.files.contents[QDir::currentPath() + u"/a.txt"_s] = "x";
        wizard.fill(u"a.txt"_s, u"a.html"_s);
        wizard.world.prompts.expect(openQuestion, Answer::Yes);
        wizard.form.press(u"Command1"_s);
        QCOMPARE(wizard.world.document.opened, QStringList{QDir::currentPath() + u"/a.html"_s});
    }

    void browsing()
    {
        Wizard wizard;
        const FileRequest forText{
            u"Browse for Text File"_s, u"Text Files (*.txt)|*.txt|All Files|*.*"_s, {}, false, {}};
        const FileRequest forPage{
            u"Browse to Destination File"_s, u"HTML Files (*.html)|*.html|All Files|*.*"_s, {}, true, {}};
        wizard.world.prompts.expectFile(forText, input);
        wizard.form.press(u"Command3"_s);
        wizard.world.prompts.expectFile(forPage, output);
        wizard.form.press(u"Command2"_s);
        // What was canceled changes nothing.
        wizard.world.prompts.expectFile(forText, {});
        wizard.form.press(u"Command3"_s);
        wizard.world.prompts.expectFile(forPage, {});
        wizard.form.press(u"Command2"_s);
        QCOMPARE(wizard.form.value(u"Text1"_s), input);
        QCOMPARE(wizard.form.value(u"Text2"_s), output);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("missing") << u"/none.txt"_s << output << u"/none.txt doesn't exist."_s;
        QTest::newRow("itself") << input << input
                                << u"The page can't be written: the file \"/texts/a.txt\" is the text file itself."_s;
        QTest::newRow("full disk") << input << u"/full/a.html"_s << u"The disk is full."_s;
    }

    void failures()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, sentence);
        Wizard wizard;
        wizard.world.files.unwritable[u"/full/a.html"_s] = Error{Error::Code::Unwritable, u"The disk is full."_s};
        const auto files = wizard.world.files.contents;
        wizard.fill(from, to);
        wizard.world.prompts.expectTell(sentence, title, Question::Icon::Exclamation);
        wizard.form.press(u"Command1"_s);
        // Nothing is asked then.
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.world.files.contents, files);
        QVERIFY(wizard.world.document.opened.isEmpty());

        wizard.world.prompts.expectTell(sentence, title, Question::Icon::Exclamation);
        QVERIFY(QMetaObject::invokeMethod(&wizard.form.widget(), "TextFileToHtml", Q_ARG(QString, from),
                                          Q_ARG(QString, to), Q_ARG(QString, QString()), Q_ARG(QString, QString()),
                                          Q_ARG(QString, QString())));
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.world.files.contents, files);
    }

    void theOperationByName()
    {
        Wizard wizard;
        QVERIFY(QMetaObject::invokeMethod(&wizard.form.widget(), "TextFileToHtml", Q_ARG(QString, input),
                                          Q_ARG(QString, output), Q_ARG(QString, u"T"_s), Q_ARG(QString, u"red"_s),
                                          Q_ARG(QString, u"blue"_s)));
        QCOMPARE(
            wizard.world.files.contents[output],
            plainTextPage(u"one\ntwo <b>\n"_s, {.title = u"T"_s, .backColour = u"red"_s, .textColour = u"blue"_s}));
    }

    /// Other names of the text file are the text file, too.
    void onTheDisk()
    {
        const QTemporaryDir folder;
        DiskFileStore files;
        const auto path = [&folder](const QString &name) { return folder.filePath(name); };
        QVERIFY(files.write(path(u"a.txt"_s), "text\n").ok());
        QVERIFY(QFile::link(path(u"a.txt"_s), path(u"symbolic.html"_s)));
        QCOMPARE(::link(path(u"a.txt"_s).toLocal8Bit().constData(), path(u"hard.html"_s).toLocal8Bit().constData()), 0);
        for (const QString &name : {u"a.txt"_s, u"symbolic.html"_s, u"hard.html"_s, u"./a.txt"_s})
            QVERIFY(!writeTextPage(files, path(u"a.txt"_s), path(name), {}).ok());
        QCOMPARE(files.read(path(u"a.txt"_s)).value(), QByteArray("text\n"));
        QVERIFY(writeTextPage(files, path(u"a.txt"_s), path(u"new.html"_s), {}).ok());
        QCOMPARE(files.read(path(u"new.html"_s)).value(), plainTextPage(u"text"_s, {}));
        QVERIFY(!writeTextPage(files, path(u"a.txt"_s), path(u"no/folder.html"_s), {}).ok());
        QVERIFY(!writeTextPage(files, folder.path(), path(u"new.html"_s), {}).ok());
        QCOMPARE(files.read(path(u"new.html"_s)).value(), plainTextPage(u"text"_s, {}));
    }
};

ZEPHIRA_TEST(TstFrmTextWizard)

#include "tst_frmthcon.moc"
