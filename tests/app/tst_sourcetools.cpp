// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What the next modal form shows before it is closed with Escape.
class NextForm
{
public:
    explicit NextForm(QObject &window, std::function<void(QWidget &)> look = {})
    {
        QTimer::singleShot(0, &window, [this, look = std::move(look)] {
            QWidget *form = QApplication::activeModalWidget();
            QVERIFY(form);
            name = form->objectName();
            if (look)
                look(*form);
            QTest::keyClick(form, Qt::Key_Escape);
        });
    }
    Q_DISABLE_COPY_MOVE(NextForm)

    QString name;
};

} // namespace

/// The forms for the source of a page, opened from the real window.
class TstSourceTools final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWeightIsThatOfTheCodeView()
    {
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"page.html"_s, "<p>"));
        window.show();
        window.rt().setText(u"<img src=a.gif>"_s + QString(1009, u'\u00e4'));
        QString size;
        QString image;
        const NextForm weight(window, [&](QWidget &form) {
            size = form.findChild<QLabel *>(u"DocSize"_s)->text();
            image = form.findChild<QTreeView *>(u"lstlinks"_s)->model()->index(0, 0).data().toString();
        });
        bench.click(u"Toolbar1"_s, u"loadtime"_s);
        QCOMPARE(weight.name, u"frmDocSize"_s);
        QCOMPARE(size, u"1.98 KB"_s);
        QCOMPARE(image, u"a.gif"_s);
        QCOMPARE(bench.read(bench.appPath() + u"/ldtemp.html"_s), window.rt().text().toUtf8());
    }

    void linksFromTheDisk_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("menu") << u"mnule"_s;
        QTest::newRow("pull-down") << u"linkextract"_s;
    }

    void linksFromTheDisk()
    {
        QFETCH(QString, command);
        WindowBench bench;
        const QString page = bench.write(u"page.html"_s, "<a href=x.htm><a href=\"y.htm\">");
        const QString saved = bench.folder() + u"/links.html"_s;
        frmmain &window = bench.start(page);
        window.show();
        bench.prompts.expectFile(
            {u"Select File"_s, u"HTML Pages (*.html, *.htm)|*.html;*.htm|All Files|*.*"_s, {}, false, {}}, page);
        bench.prompts.expectFile(
            {u"Save File"_s, u"HTML File|*.html|HTM File|*.htm|All Files|*.*"_s, bench.folder() + u'/', true, {}},
            saved);
        const NextForm links(window, [](QWidget &form) {
            for (const QString &button : {u"cmdOnE"_s, u"cmdSave"_s})
                QTest::mouseClick(form.findChild<QPushButton *>(button), Qt::LeftButton);
        });
        bench.choose(command);
        QCOMPARE(links.name, u"frmlinkextract"_s);
        QVERIFY(bench.prompts.verify());
        QCOMPARE(bench.read(saved),
                 QByteArray("<HTML>\r\n<BODY>\r\n<A HREF=\"y.htm\">y.htm</A><BR>\r\n"
                            "<A HREF=\"x.htm\">x.htm</A><BR>\r\n"
                            "<A HREF=\"\"y.htm\"\">\"y.htm\"</A><BR>"));
        QCOMPARE(window.rt().text(), u"<a href=x.htm><a href=\"y.htm\">"_s);
    }

    void theConverterOpens_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("position");
        QTest::newRow("menu") << u"mnutextwiz"_s << 0;
        QTest::newRow("palette") << QString() << 7;
    }

    void theConverterOpens()
    {
        QFETCH(QString, entry);
        QFETCH(int, position);
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        QString html;
        const NextForm converter(window, [&html](QWidget &form) {
            QTest::mouseClick(form.findChild<QPushButton *>(u"cmdConvert"_s), Qt::LeftButton);
            html = form.findChild<QPlainTextEdit *>(u"txtHTML"_s)->toPlainText();
        });
        if (position == 0)
            bench.choose(entry);
        else
            bench.click(u"Toolbar_2"_s, position);
        QCOMPARE(converter.name, u"frmtextthtml"_s);
        QVERIFY(html.startsWith(u"<p align=center>"));
        QVERIFY(!window.docModified());
    }
};

ZEPHIRA_TEST(TstSourceTools)

#include "tst_sourcetools.moc"
