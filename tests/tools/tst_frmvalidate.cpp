// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/eventwait.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tools/frmvalidate.h"
#include "tools/realtidy.h"
#include "tools/registerforms.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScopeGuard>
#include <QTest>
#include <QTreeView>

#include <thread>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString path = u"/pages/a.html"_s;
const QString title = u"Validate Your HTML"_s;
const Question sendQuestion{u"Are you sure you want to send changes to the main Zephira window?"_s,
                            {},
                            Question::Icon::Question,
                            Question::Buttons::YesNo};

/// Records what it is asked for, and answers as the test says.
struct FakeTidy final : TidyEngine {
    /// Written by the working thread, read after it has ended.
    mutable std::vector<TidySetting> settings;
    mutable QByteArray markup;
    /// Whether a run lasts until it is cancelled.
    bool endless = false;
    mutable std::atomic<int> running = 0;
    std::vector<TidyMessage> messages;
    std::optional<Error> failure;

    Result<Run> run(const QByteArray &text, const std::vector<TidySetting> &wanted, Steps,
                    TidyWatch &watch) const override
    {
        ++running;
        // The last use of this object.
        const auto ended = qScopeGuard([this] { --running; });
        settings = wanted;
        markup = text;
        watch.setProgress(0.5);
        while (endless && !watch.isCancelled())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (failure)
            return *failure;
        return Run{"cleaned", messages, false};
    }
};

/// The form over a file, with Tidy or something in its place.
struct Validator {
    TestContext world;
    FakeTidy tidy;
    TidyEngineLoader loader = realTidy;
    std::unique_ptr<LivingForm> form;

    explicit Validator(const QByteArray &content = "<title>x</title>\r\n<p>a <foo>b\r\n")
    {
        world.document.language = u"Html"_s;
        world.document.dialogFile = path;
        world.files.contents[path] = content;
        world.editor.setText(QString::fromUtf8(content));
    }

    /// With a fake in Tidy's place.
    void useFake()
    {
        loader = [this]() -> Result<TidyEngine *> { return &tidy; };
    }

    void open()
    {
        FormCatalogue forms;
        tools::registerForms(forms, loader);
        form = std::make_unique<LivingForm>(forms, u"frmvalidate"_s, world);
    }

    bool isWorking() const { return form->get<QWidget>(u"cmdCancel"_s).isVisible(); }

    /// Presses a button and waits until the clean-up is done.
    void run(const QString &button = u"Command1"_s) const
    {
        form->press(button);
        QVERIFY(waitUntil([this] { return !form->isOpen() || !isWorking(); }, 60'000));
    }

    QTreeView &list() const { return form->get<QTreeView>(u"ListView1"_s); }
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            texts.append(list().model()->index(row, 0).data().toString());
        return texts;
    }
    QString cleaned() const { return form->widget().property("cleanedText").toString(); }
    QString status() const { return form->value(u"lblStatus"_s); }
};

const QStringList pageRows{u"line 1 column 1 - Warning: missing <!DOCTYPE> declaration"_s,
                           u"line 2 column 1 - Warning: inserting implicit <body>"_s,
                           u"line 2 column 6 - Warning: discarding unexpected <foo>"_s,
                           u"line 2 column 6 - Error: <foo> is not recognized!"_s};

/// Keeps the processor busy.
class Load
{
public:
    Load()
    {
        for (int thread = 0; thread < 4; ++thread) {
            m_threads.emplace_back([this] {
                while (!m_isOver)
                    ++m_count;
            });
        }
    }
    ~Load()
    {
        m_isOver = true;
        for (std::thread &thread : m_threads)
            thread.join();
    }
    Q_DISABLE_COPY_MOVE(Load)

private:
    std::atomic<bool> m_isOver = false;
    std::atomic<int> m_count = 0;
    std::vector<std::thread> m_threads;
};

/// A page of that many bytes, with faults.
QByteArray largePage(qsizetype bytes)
{
    const QByteArray unit =
        "<h1>Title</h1>\r\n<p>text <b>bold</b> <foo> &euro; <a href=x>link</a>\r\n<ul><li>x</ul>\r\n";
    return unit.repeated(bytes / unit.size());
}

} // namespace

class TstFrmValidate final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        Validator validator;
        validator.open();
        const LivingForm &form = *validator.form;
        QCOMPARE(form.value(u"frmvalidate"_s), title);
        QCOMPARE(form.value(u"lblinput"_s), u"HTML"_s);
        QCOMPARE(form.value(u"cbodc"_s), u"auto"_s);
        QCOMPARE(form.value(u"cboCE"_s), u"ascii"_s);
        QCOMPARE(form.get<QComboBox>(u"cbodc"_s).count(), 5);
        QCOMPARE(form.get<QComboBox>(u"cboCE"_s).count(), 5);
        for (const TidyCheck &check : tidyChecks())
            QCOMPARE(form.value(check.control.toString()), u"off"_s);
        QCOMPARE(validator.list().model()->headerData(0, Qt::Horizontal), u"Errors and Warnings"_s);
        QVERIFY(validator.rows().isEmpty());
        QVERIFY(form.get<QPushButton>(u"Command1"_s).isDefault());
        QVERIFY(!validator.isWorking());
        QVERIFY(!form.get<QProgressBar>(u"prgTidy"_s).isVisible());
        QCOMPARE(validator.status(), QString());
        QCOMPARE(validator.cleaned(), QString());
    }

    void whatTidySays()
    {
        Validator validator;
        validator.open();
        validator.run();
        QCOMPARE(validator.rows(), pageRows);
        QVERIFY2(validator.cleaned().endsWith(u"<BODY>\r\n<P>a b</P>\r\n</BODY>\r\n</HTML>\r\n"),
                 qPrintable(validator.cleaned()));
        QCOMPARE(validator.status(), u"Warnings: 3, errors: 1"_s);
        const QAbstractItemModel &model = *validator.list().model();
        const auto picture = [&model](int row) {
            return model.index(row, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
        };
        QVERIFY(!picture(0).isNull());
        QCOMPARE(picture(0), picture(1));
        QVERIFY(picture(2) != picture(3));
        QCOMPARE(model.index(0, 0).data(Qt::ToolTipRole), model.index(0, 0).data());
        // The document's own text is left alone, and so is its file.
        QCOMPARE(validator.world.editor.text(), u"<title>x</title>\r\n<p>a <foo>b\r\n"_s);
        QVERIFY(validator.world.files.log.isEmpty());
    }

    void theListIsNotCleared()
    {
        Validator validator;
        validator.open();
        validator.run();
        validator.run();
        QCOMPARE(validator.rows(), pageRows + pageRows);
    }

    void theSavedCopyIsWhatCounts()
    {
        Validator validator;
        validator.world.editor.setText(u"<p>typed later"_s);
        validator.open();
        validator.run();
        QCOMPARE(validator.rows(), pageRows);
        validator.world.prompts.expect(sendQuestion, Answer::Yes);
        validator.run(u"Command3"_s);
        QVERIFY(!validator.world.editor.text().contains(u"typed later"));
    }

    void anUnsavedDocument()
    {
        Validator validator;
        validator.world.document.dialogFile.clear();
        validator.open();
        validator.form->press(u"Command1"_s);
        QVERIFY(!validator.isWorking());
        QVERIFY(validator.rows().isEmpty());
        QCOMPARE(validator.cleaned(), QString());
        QCOMPARE(validator.status(), u"Save the document first."_s);
    }

    void eachChoiceReachesTidy_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("option");
        QTest::addColumn<QByteArray>("setting");
        for (const TidyCheck &check : tidyChecks()) {
            if (check.options.front() && check.control != u"Check15")
                QTest::newRow(check.options.front())
                    << check.control.toString() << u"on"_s << QByteArray(check.options.front()) << QByteArray("yes");
        }
        QTest::newRow("document type") << u"cbodc"_s << u"strict"_s << QByteArray("doctype") << QByteArray("strict");
        QTest::newRow("encoding") << u"cboCE"_s << u"latin1"_s << QByteArray("output-encoding") << QByteArray("latin1");
    }

    void eachChoiceReachesTidy()
    {
        QFETCH(QString, control);
        QFETCH(QString, value);
        QFETCH(QByteArray, option);
        QFETCH(QByteArray, setting);
        Validator validator;
        validator.useFake();
        validator.open();
        const auto isSet = [&] {
            return std::ranges::count(validator.tidy.settings, TidySetting{option, setting}) > 0;
        };
        validator.run();
        QVERIFY(!isSet());
        validator.form->set(control, value);
        validator.run();
        QVERIFY(isSet());
        QCOMPARE(validator.tidy.markup, QByteArray("<title>x</title>\n<p>a <foo>b\n"));
    }

    void xmlIsReadAsXml()
    {
        for (const QString &language : {u"Xml"_s, u"XML"_s, u"Html"_s}) {
            Validator validator;
            validator.useFake();
            validator.world.document.language = language;
            validator.open();
            validator.run();
            QCOMPARE(std::ranges::count(validator.tidy.settings, TidySetting{"input-xml", "yes"}) > 0,
                     language != u"Html");
        }
    }

    void showOutput()
    {
        Validator validator;
        QString shown;
        validator.world.forms.onOpen = [&](const QString &) { shown = validator.cleaned(); };
        validator.open();
        validator.run();
        validator.form->press(u"Command2"_s);
        QCOMPARE(validator.world.forms.modal, QStringList{u"output"_s});
        QVERIFY(!shown.isEmpty());

        FormCatalogue forms;
        tools::registerForms(forms, {});
        const std::unique_ptr<QWidget> window(forms.make(u"output"_s, validator.world, &validator.form->widget()));
        QCOMPARE(window->windowTitle(), u"Output"_s);
        const auto *text = window->findChild<QPlainTextEdit *>(u"text1"_s);
        QCOMPARE(text->toPlainText(), QString(shown).replace(u"\r\n"_s, u"\n"_s));
        QVERIFY(text->isReadOnly());
    }

    void sendChanges()
    {
        Validator validator;
        int changes = 0;
        validator.world.editor.onChange = [&changes] { ++changes; };
        validator.open();
        validator.world.prompts.expect(sendQuestion, Answer::Yes);
        validator.form->press(u"Command3"_s);
        QVERIFY(waitUntil([&] { return !validator.form->isOpen(); }, 10'000));
        QVERIFY(validator.world.prompts.verify());
        QVERIFY2(validator.world.editor.text().endsWith(u"<P>a b</P>\r\n</BODY>\r\n</HTML>\r\n"),
                 qPrintable(validator.world.editor.text()));
        // A single change, so that one undo takes it back.
        QCOMPARE(changes, 1);
        QCOMPARE(validator.world.designer.html, QString());
    }

    /// Otherwise the designer would still show the old page, and would put it in place of the sent text when visual mode
    /// is left.
    void theDesignerShowsWhatWasSent()
    {
        Validator validator;
        validator.world.designer.showing = true;
        validator.world.designer.html = u"<p>edited later"_s;
        validator.open();
        validator.world.prompts.expect(sendQuestion, Answer::Yes);
        validator.form->press(u"Command3"_s);
        QVERIFY(waitUntil([&] { return !validator.form->isOpen(); }, 10'000));
        QVERIFY(validator.world.editor.text().contains(u"<P>a b</P>"));
        QCOMPARE(validator.world.designer.html, validator.world.editor.text());
    }

    void notSent()
    {
        Validator validator;
        validator.open();
        validator.world.prompts.expect(sendQuestion, Answer::No);
        validator.run(u"Command3"_s);
        QVERIFY(validator.world.prompts.verify());
        QVERIFY(validator.form->isOpen());
        QCOMPARE(validator.world.editor.text(), u"<title>x</title>\r\n<p>a <foo>b\r\n"_s);
        // It cleans up anew in any case.
        QCOMPARE(validator.rows(), pageRows);
        QVERIFY(!validator.cleaned().isEmpty());
    }

    void anUnsavedDocumentIsSentEmpty()
    {
        Validator validator;
        validator.world.document.dialogFile.clear();
        validator.open();
        validator.world.prompts.expect(sendQuestion, Answer::Yes);
        validator.form->press(u"Command3"_s);
        QVERIFY(!validator.form->isOpen());
        QCOMPARE(validator.world.editor.text(), QString());
    }

    void failures_data()
    {
        QTest::addColumn<QString>("sentence");
        QTest::newRow("missing") << u"/pages/a.html doesn't exist."_s;
        QTest::newRow("too large") << u"It is too large."_s;
        QTest::newRow("no module") << u"It isn't installed."_s;
        QTest::newRow("Tidy") << u"It is too deep."_s;
    }

    void failures()
    {
        const QByteArray which = QTest::currentDataTag();
        QFETCH(QString, sentence);
        Validator validator;
        validator.useFake();
        if (which == "missing")
            validator.world.files.contents.clear();
        else if (which == "too large")
            validator.world.files.unreadable[path] = Error{Error::Code::TooLarge, sentence};
        else if (which == "no module")
            validator.loader = [sentence]() -> Result<TidyEngine *> { return Error{Error::Code::Failed, sentence}; };
        else
            validator.tidy.failure = Error{Error::Code::TooLarge, sentence};
        validator.open();
        for (const QString &button : {u"Command1"_s, u"Command3"_s}) {
            validator.world.prompts.expectTell(sentence, title, Question::Icon::Exclamation);
            validator.run(button);
            // Nothing is asked, and nothing is sent.
            QVERIFY(validator.world.prompts.verify());
        }
        QVERIFY(validator.form->isOpen());
        QVERIFY(validator.rows().isEmpty());
        QVERIFY(validator.form->get<QWidget>(u"Command1"_s).isEnabled());
        QCOMPARE(validator.world.editor.text(), u"<title>x</title>\r\n<p>a <foo>b\r\n"_s);
    }

    void cancel()
    {
        Validator validator;
        validator.useFake();
        validator.tidy.endless = true;
        validator.open();
        validator.form->press(u"Command3"_s);
        QVERIFY(validator.isWorking());
        const auto &progress = validator.form->get<QProgressBar>(u"prgTidy"_s);
        QVERIFY(progress.isVisible());
        QVERIFY(waitUntil([&progress] { return progress.value() == 500; }, 10'000));
        QCOMPARE(validator.form->focus(), u"cmdCancel"_s);
        for (const QString &control : {u"Command1"_s, u"Command2"_s, u"Command3"_s, u"cbodc"_s, u"Check1"_s})
            QVERIFY(!validator.form->get<QWidget>(control).isEnabled());

        validator.form->press(u"cmdCancel"_s);
        QVERIFY(!validator.isWorking());
        QCOMPARE(validator.status(), u"The check was canceled."_s);
        QCOMPARE(validator.form->focus(), u"Command3"_s);
        QVERIFY(waitUntil([&] { return validator.tidy.running == 0; }, 10'000));
        // No question follows, nor does the result of the cancelled run.
        QTest::qWait(100);
        QVERIFY(validator.rows().isEmpty());
        QCOMPARE(validator.cleaned(), QString());

        validator.tidy.endless = false;
        validator.run();
        QCOMPARE(validator.cleaned(), u"cleaned"_s);
    }

    void closedInTheMiddle_data()
    {
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("closed") << false;
        QTest::newRow("destroyed") << true;
    }

    void closedInTheMiddle()
    {
        QFETCH(bool, destroyed);
        Validator validator;
        validator.useFake();
        validator.tidy.endless = true;
        validator.open();
        validator.form->press(u"Command3"_s);
        QVERIFY(waitUntil([&] { return validator.tidy.running == 1; }, 10'000));
        if (destroyed)
            validator.form.reset();
        else
            validator.form->key(Qt::Key_Escape);
        QVERIFY(destroyed || !validator.form->isOpen());
        QVERIFY(waitUntil([&] { return validator.tidy.running == 0; }, 10'000));
        QTest::qWait(50);
        QCOMPARE(validator.world.editor.text(), u"<title>x</title>\r\n<p>a <foo>b\r\n"_s);
    }

    void aLargePageUnderLoad()
    {
        const QByteArray page = largePage(10'000'000);
        const Load load;
        for (int round = 0; round < 12; ++round) {
            Validator validator(page);
            validator.open();
            validator.form->set(u"Check7"_s, u"on"_s);
            validator.form->press(round % 2 == 0 ? u"Command1"_s : u"Command3"_s);
            QTest::qWait(round * 40);
            if (round % 3 == 0)
                validator.form->press(u"cmdCancel"_s);
            else if (round % 3 == 1)
                validator.form->key(Qt::Key_Escape);
            // Otherwise it is destroyed as it is.
        }
    }

    void aLargePageDoesNotFreezeTheWindow()
    {
        Validator validator(largePage(10'000'000));
        validator.open();
        QElapsedTimer sinceTick;
        qint64 longest = 0;
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            longest = std::max(longest, sinceTick.restart());
            ++ticks;
        });
        QElapsedTimer press;
        press.start();
        validator.form->press(u"Command1"_s);
        QVERIFY2(press.elapsed() < 500, qPrintable(QString::number(press.elapsed())));
        sinceTick.start();
        timer.start(5);
        QVERIFY(waitUntil([&] { return !validator.isWorking(); }, 60'000));
        QVERIFY2(longest < 500, qPrintable(QString::number(longest)));
        QVERIFY2(ticks > 10, qPrintable(QString::number(ticks)));
        QVERIFY(validator.list().model()->rowCount() > 200'000);
        QVERIFY(validator.cleaned().size() > 8'000'000);
    }

    void aRowSelectsItsPlace_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("double click") << false;
        QTest::newRow("return key") << true;
    }

    void aRowSelectsItsPlace()
    {
        QFETCH(bool, byKey);
        Validator validator("<title>x</title>\r\n<p>\t\xf0\x9f\x98\x80 <foo a=b>c\r\n");
        validator.open();
        validator.run();
        const int last = validator.list().model()->rowCount() - 1;
        const QModelIndex row = validator.list().model()->index(last, 0);
        QVERIFY(row.data().toString().contains(u"Error: <foo>"));
        validator.list().setFocus();
        validator.list().setCurrentIndex(row);
        if (byKey) {
            validator.form->key(Qt::Key_Return);
        } else {
            QWidget *viewport = validator.list().viewport();
            const QPoint place = validator.list().visualRect(row).center();
            QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
            QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
        }
        QCOMPARE(validator.world.editor.selText(), u"<foo a=b>"_s);
        QVERIFY(validator.form->isOpen());
        // The key isn't passed on to the default button.
        QVERIFY(!validator.isWorking());
        QCOMPARE(validator.rows().size(), last + 1);
    }

    void aMessageWithoutAPlaceSelectsNothing()
    {
        Validator validator;
        validator.useFake();
        validator.tidy.messages = {{.kind = TidyMessage::Kind::Error, .line = -1, .column = 0, .text = u"all"_s}};
        validator.open();
        validator.run();
        QCOMPARE(validator.rows(), QStringList{u"all"_s});
        validator.world.editor.selectPart(u"<p>"_s);
        validator.list().setFocus();
        validator.form->key(Qt::Key_Return);
        validator.list().setCurrentIndex(validator.list().model()->index(0, 0));
        validator.form->key(Qt::Key_Return);
        QCOMPARE(validator.world.editor.selText(), u"<p>"_s);
    }
};

ZEPHIRA_TEST(TstFrmValidate)

#include "tst_frmvalidate.moc"
