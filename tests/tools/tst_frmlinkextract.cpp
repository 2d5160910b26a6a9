// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tools/frmlinkextract.h"
#include "tools/registerforms.h"

#include <QDir>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString title = u"URL Extractor - Zephira."_s;
const QString path = u"/pages/a.html"_s;

/// The form with fakes of its own.
struct Extractor {
    TestContext world;
    std::unique_ptr<LivingForm> form;

    Extractor() { reopen(); }

    void reopen()
    {
        form.reset();
        FormCatalogue forms;
        tools::registerForms(forms, {});
        form = std::make_unique<LivingForm>(forms, u"frmlinkextract"_s, world);
    }

    LinkList &list() const { return form->get<LinkList>(u"lstURL"_s); }

    static FileRequest openRequest(const QString &last = {})
    {
        return {u"Select File"_s, u"HTML Pages (*.html, *.htm)|*.html;*.htm|All Files|*.*"_s, {}, false, last};
    }
    static FileRequest saveRequest(const QString &folder)
    {
        return {u"Save File"_s, u"HTML File|*.html|HTM File|*.htm|All Files|*.*"_s, folder, true};
    }

    /// Extracts from a file with that content.
    void extract(const QByteArray &content)
    {
        world.files.contents[path] = content;
        world.prompts.expectFile(openRequest(form->value(u"txtFile"_s)), path);
        form->press(u"cmdOnE"_s);
    }

    void save(const QString &to)
    {
        world.prompts.expectFile(saveRequest(u"/pages/"_s), to);
        form->press(u"cmdSave"_s);
    }

    void clickRow(int row, bool twice = false) const
    {
        const QPoint place = list().visualRect(list().model()->index(row, 0)).center();
        QWidget *viewport = list().viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
        if (twice)
            QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
    }

    frmlinkextract &widget() const { return dynamic_cast<frmlinkextract &>(form->widget()); }
};

} // namespace

class TstFrmLinkExtract final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const Extractor extractor;
        QCOMPARE(extractor.form->value(u"frmlinkextract"_s), title);
        QCOMPARE(extractor.form->value(u"txtFile"_s), QString());
        QCOMPARE(extractor.form->value(u"lblInfo"_s),
                 u"Click to copy to the clipboard, double click to enter selected URL"_s);
        QVERIFY(extractor.list().rows().isEmpty());
        QVERIFY(!extractor.form->get<QWidget>(u"rtf"_s).isVisible());
        QVERIFY(extractor.form->get<QPushButton>(u"cmdOnE"_s).isDefault());
    }

    void linksOfAFile()
    {
        Extractor extractor;
        extractor.extract("<a href=\"x.htm\">x</a><A HREF=y.htm target=z>");
        QCOMPARE(extractor.list().rows(), (QStringList{u"x.htm"_s, u"\"x.htm\""_s, u"y.htm target=z"_s}));
        QCOMPARE(extractor.form->value(u"txtFile"_s), path);
        QCOMPARE(extractor.list().horizontalExtent(), 800);
        QVERIFY(extractor.form->get<QWidget>(u"rtf"_s).property("text").toString().startsWith(u"<a href"));
        // The next file replaces them.
        extractor.extract("<p>");
        QVERIFY(extractor.list().rows().isEmpty());
    }

    void theFocusStaysWhereItWas()
    {
        Extractor extractor;
        auto &button = extractor.form->get<QPushButton>(u"cmdOnE"_s);
        button.setFocus();
        extractor.extract("<a href=\"x.htm\">");
        QCOMPARE(extractor.widget().focusWidget(), &button);
    }

    void anyEncoding_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("UTF-8") << QByteArray("<a href=\xc3\xa4>");
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf<a href=\xc3\xa4>");
        QTest::newRow("Windows-1252") << QByteArray("<a href=\xe4>");
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0a\0 \0h\0r\0e\0f\0=\0\xe4\0>\0", 22);
    }

    void anyEncoding()
    {
        QFETCH(QByteArray, content);
        Extractor extractor;
        extractor.extract(content);
        QCOMPARE(extractor.list().rows(), QStringList{u"ä"_s});
    }

    void rubbish_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<qsizetype>("rows");
        QTest::newRow("nothing") << QByteArray() << static_cast<qsizetype>(0);
        QTest::newRow("zeros") << QByteArray(10000, '\0') << static_cast<qsizetype>(0);
        QTest::newRow("bytes") << QByteArray("\x01\xff<a href=\"\x02\0\xfe", 14) << static_cast<qsizetype>(2);
        QTest::newRow("one long line") << QByteArray("<a href=x>").repeated(50000) << static_cast<qsizetype>(50000);
    }

    void rubbish()
    {
        QFETCH(QByteArray, content);
        Extractor extractor;
        extractor.extract(content);
        QCOMPARE(extractor.list().model()->rowCount(), extractor.list().rows().size());
        QTEST(extractor.list().rows().size(), "rows");
    }

    void cancelEndsQuietly()
    {
        Extractor extractor;
        extractor.extract("<a href=x>");
        extractor.world.prompts.expectFile(Extractor::openRequest(path), {});
        extractor.form->press(u"cmdOnE"_s);
        extractor.world.prompts.expectFile(Extractor::saveRequest(u"/pages/"_s), {});
        extractor.form->press(u"cmdSave"_s);
        QCOMPARE(extractor.list().rows(), QStringList{u"x"_s});
        QVERIFY(extractor.world.files.log.isEmpty());
        QVERIFY(extractor.world.prompts.verify());
    }

    void aFileThatCantBeReadIsTold()
    {
        Extractor extractor;
        extractor.world.files.unreadable[path] = Error{Error::Code::TooLarge, u"It is too large."_s};
        extractor.world.prompts.expectFile(Extractor::openRequest(), path);
        extractor.world.prompts.expectTell(u"It is too large."_s, title, Question::Icon::Exclamation);
        extractor.form->press(u"cmdOnE"_s);
        QVERIFY(extractor.world.prompts.verify());
        QCOMPARE(extractor.form->value(u"txtFile"_s), QString());
        QVERIFY(extractor.widget().isEnabled());
    }

    void tooManyLinksAreTold()
    {
        Extractor extractor;
        constexpr qsizetype shown = maximumLength / 795;
        extractor.world.prompts.expectFile(Extractor::openRequest(), path);
        extractor.world.files.contents[path] = QByteArray("href=").repeated(170'000);
        extractor.world.prompts.expectTell(
            u"There are too many links to list. Only the first %1 are shown."_s.arg(shown), title,
            Question::Icon::Exclamation);
        extractor.form->press(u"cmdOnE"_s);
        QCOMPARE(extractor.list().rows().size(), shown);
        QCOMPARE(extractor.form->value(u"txtFile"_s), path);
    }

    void extractAppendsWhatIsAsked()
    {
        Extractor extractor;
        auto &text = extractor.form->get<SearchText>(u"rtf"_s);
        text.setText(u"<a href=x>"_s);
        const auto run = [&](const QString &file, bool clear, int extent) {
            bool done = false;
            return QMetaObject::invokeMethod(&extractor.widget(), "ExtractURL", Q_RETURN_ARG(bool, done),
                                             Q_ARG(zephira::SearchText *, &text),
                                             Q_ARG(zephira::LinkList *, &extractor.list()), Q_ARG(QString, file),
                                             Q_ARG(bool, clear), Q_ARG(int, extent))
                && done;
        };
        QVERIFY(run({}, false, 0));
        QVERIFY(run(u"  "_s, false, 0));
        QCOMPARE(extractor.list().rows(), (QStringList{u"x"_s, u"x"_s}));
        QCOMPARE(extractor.list().horizontalExtent(), 0);
        extractor.world.files.contents[path] = "<a href=y>";
        QVERIFY(run(path, true, 500));
        QCOMPARE(extractor.list().rows(), QStringList{u"y"_s});
        QCOMPARE(extractor.list().horizontalExtent(), 500);
        QCOMPARE(text.text(), u"<a href=y>"_s);
    }

    void theExtentCanBeScrolledTo()
    {
        Extractor extractor;
        extractor.extract("<a href=x>");
        extractor.form->widget().resize(400, 300);
        const LinkList &list = extractor.list();
        QTRY_COMPARE(list.horizontalScrollBar()->maximum() + list.viewport()->width(), 800);
    }

    void aClickCopies()
    {
        Extractor extractor;
        extractor.extract("<a href=x><a href=y>");
        extractor.clickRow(1);
        QCOMPARE(extractor.world.clipboard.content, u"y"_s);
        extractor.clickRow(0);
        QCOMPARE(extractor.world.clipboard.content, u"x"_s);
        QVERIFY(extractor.world.shell.opened.isEmpty());
    }

    void theKeysCopyAndOpen()
    {
        Extractor extractor;
        extractor.extract("<a href=http://x><a href=http://y>");
        extractor.list().setFocus();
        extractor.list().setCurrentIndex(extractor.list().model()->index(1, 0));
        extractor.form->key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(extractor.world.clipboard.content, u"http://y"_s);
        extractor.form->key(Qt::Key_Return);
        QCOMPARE(extractor.world.shell.opened, QStringList{u"http://y"_s});
        QVERIFY(extractor.form->isOpen());
    }

    void aDoubleClickOpens()
    {
        Extractor extractor;
        extractor.extract("<a href=http://x/><a href=y.htm>");
        extractor.clickRow(0, true);
        extractor.clickRow(1, true);
        QCOMPARE(extractor.world.shell.opened, (QStringList{u"http://x/"_s, QDir::homePath() + u"/y.htm"_s}));
    }

    void whatCantBeOpenedIsTold()
    {
        Extractor extractor;
        extractor.extract("<a href=x:>");
        extractor.world.shell.failure = Error{Error::Code::NotFound, u"There is none."_s};
        extractor.world.prompts.expectTell(u"There is none."_s, title, Question::Icon::Exclamation);
        extractor.clickRow(0, true);
        QVERIFY(extractor.world.prompts.verify());
    }

    void savedPage()
    {
        Extractor extractor;
        extractor.extract("<a href=x><a href=\xc3\xa4>");
        const QString to = u"/pages/links.html"_s;
        extractor.world.files.contents[to] = "old";
        extractor.save(to);
        QCOMPARE(extractor.world.files.contents[to],
                 QByteArray("<HTML>\r\n<BODY>\r\n<A HREF=\"x\">x</A><BR>\r\n"
                            "<A HREF=\"\xc3\xa4\">\xc3\xa4</A><BR>"));
        QCOMPARE(extractor.world.files.log, QStringList{u"write "_s + to});
    }

    void anEmptyListIsAnEmptyFile()
    {
        Extractor extractor;
        bool done = false;
        QVERIFY(QMetaObject::invokeMethod(&extractor.widget(), "SaveLinksPage", Q_RETURN_ARG(bool, done),
                                          Q_ARG(QString, u"/links.html"_s)));
        QVERIFY(done);
        QVERIFY(extractor.world.files.contents.contains(u"/links.html"_s));
        QCOMPARE(extractor.world.files.contents[u"/links.html"_s], QByteArray());
    }

    void aFailedSaveIsTold()
    {
        Extractor extractor;
        extractor.extract("<a href=x>");
        const QString to = u"/pages/links.html"_s;
        extractor.world.files.contents[to] = "old";
        extractor.world.files.unwritable[to] = Error{Error::Code::Unwritable, u"The disk is full."_s};
        extractor.world.prompts.expectFile(Extractor::saveRequest(u"/pages/"_s), to);
        extractor.world.prompts.expectTell(u"The disk is full."_s, title, Question::Icon::Exclamation);
        extractor.form->press(u"cmdSave"_s);
        QVERIFY(extractor.world.prompts.verify());
        QCOMPARE(extractor.world.files.contents[to], QByteArray("old"));
        QVERIFY(!extractor.widget().SaveLinksPage(to));
        QCOMPARE(extractor.list().rows(), QStringList{u"x"_s});
    }

    void thePlaceIsKept()
    {
        Extractor extractor;
        extractor.form->widget().move(45, 60);
        const QPoint place = extractor.form->widget().pos();
        extractor.form->key(Qt::Key_Escape);
        QVERIFY(!extractor.form->isOpen());
        const std::map<QString, QString> expected{{u"zephira/Settings/Left"_s, QString::number(15 * place.x())},
                                                  {u"zephira/Settings/Top"_s, QString::number(15 * place.y())}};
        QCOMPARE(extractor.world.settings.values, expected);
        extractor.reopen();
        QCOMPARE(extractor.form->widget().pos(), place);
    }

    void aPlaceOnNoScreenIsForgotten_data()
    {
        QTest::addColumn<QString>("top");
        QTest::addColumn<QString>("left");
        QTest::newRow("far away") << u"600"_s << u"1500000"_s;
        QTest::newRow("no number") << u"x"_s << u"600"_s;
        QTest::newRow("one alone") << QString() << u"600"_s;
    }

    void aPlaceOnNoScreenIsForgotten()
    {
        QFETCH(QString, top);
        QFETCH(QString, left);
        Extractor extractor;
        extractor.form.reset();
        extractor.world.settings.values[u"zephira/Settings/Top"_s] = top;
        extractor.world.settings.values[u"zephira/Settings/Left"_s] = left;
        extractor.reopen();
        QVERIFY(QGuiApplication::screenAt(extractor.form->widget().pos()));
        QVERIFY(extractor.form->widget().pos() != QPoint(40, 40));
    }

private:
    static constexpr qsizetype maximumLength = 128LL * 1024 * 1024;
};

ZEPHIRA_TEST(TstFrmLinkExtract)

#include "tst_frmlinkextract.moc"
