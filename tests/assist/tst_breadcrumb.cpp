// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "assist/breadcrumb.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Line {
    AssistFixture fixture;
    QWidget *pane = new QWidget(&fixture.window);
    Breadcrumb *line = new Breadcrumb(fixture.editor, pane);

    explicit Line(const QString &language = u"HTML"_s)
    {
        auto *layout = new QVBoxLayout(pane);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&fixture.editor);
        layout->addWidget(line);
        fixture.window.setCentralWidget(pane);
        fixture.editor.setLanguage(language);
        line->setOn(true);
        fixture.show();
    }
    Q_DISABLE_COPY_MOVE(Line)

    /// The captions after the caret has come to rest.
    QStringList captions() const
    {
        QTest::qWait(2 * Breadcrumb::delay);
        return line->captions();
    }
    QToolButton &crumb(int number) const { return *line->findChild<QToolButton *>(u"crumb_%1"_s.arg(number)); }
};

} // namespace

class TstBreadcrumb final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsCaretAndText()
    {
        Line bench;
        bench.fixture.setMarked(u"<body>\r\n<div id=main class='a b'><p>x|y</p></div>"_s);
        QCOMPARE(bench.captions(), (QStringList{u"body"_s, u"div#main.a.b"_s, u"p"_s}));
        QTest::keyClick(&bench.fixture.editor, Qt::Key_Home);
        QCOMPARE(bench.captions(), QStringList{u"body"_s});
        bench.fixture.type(u"<i>"_s);
        QCOMPARE(bench.captions(), (QStringList{u"body"_s, u"i"_s}));
        // The sign behind the word is a step of its own.
        bench.fixture.editor.undo();
        bench.fixture.editor.undo();
        QCOMPARE(bench.captions(), QStringList{u"body"_s});
        bench.fixture.editor.setText({});
        QCOMPARE(bench.captions(), QStringList());
        QVERIFY(bench.line->isVisible());
    }

    void followsChangesBeforeTheCaret()
    {
        Line bench;
        bench.fixture.setMarked(u"<body>\r\n<p>x|y</p>"_s);
        QCOMPARE(bench.captions(), (QStringList{u"body"_s, u"p"_s}));
        bench.fixture.editor.perform([&] { bench.fixture.editor.replaceBytes(1, 5, "main"); });
        QCOMPARE(bench.captions(), (QStringList{u"main"_s, u"p"_s}));
    }

    void aClickSelectsTheElement()
    {
        Line bench;
        bench.fixture.setMarked(u"<div>\r\n<ul><li>\u00e9|<li>b</ul>\r\n</div>"_s);
        QCOMPARE(bench.captions(), (QStringList{u"div"_s, u"ul"_s, u"li"_s}));
        QTest::mouseClick(&bench.crumb(3), Qt::LeftButton);
        QCOMPARE(bench.fixture.marked(), u"<div>\r\n<ul>|<li>\u00e9^<li>b</ul>\r\n</div>"_s);
        QVERIFY(bench.fixture.editor.hasFocus());
        // The caret is before the element now.
        QCOMPARE(bench.captions(), (QStringList{u"div"_s, u"ul"_s}));
        QTest::mouseClick(&bench.crumb(1), Qt::LeftButton);
        QCOMPARE(bench.fixture.marked(), u"|<div>\r\n<ul><li>\u00e9<li>b</ul>\r\n</div>^"_s);
    }

    void aClickOnWhatIsNoMoreSelectsNothing()
    {
        Line bench;
        bench.fixture.setMarked(u"<div>some text<p>x|y</p></div>"_s);
        QCOMPARE(bench.captions(), (QStringList{u"div"_s, u"p"_s}));
        bench.fixture.editor.setText(u"<div>"_s);
        // The line hasn't heard of it yet.
        QTest::mouseClick(&bench.crumb(2), Qt::LeftButton);
        QCOMPARE(bench.fixture.editor.selText(), QString());
        QCOMPARE(bench.fixture.editor.text(), u"<div>"_s);
        QCOMPARE(bench.captions(), QStringList());
    }

    void byKeys()
    {
        Line bench;
        bench.fixture.setMarked(u"<div><p><b>|</b></p></div>"_s);
        QCOMPARE(bench.captions().size(), 3);
        bench.crumb(3).setFocus();
        QTest::keyClick(&bench.crumb(3), Qt::Key_Right);
        QVERIFY(bench.crumb(3).hasFocus());
        QTest::keyClick(&bench.crumb(3), Qt::Key_Left);
        QVERIFY(bench.crumb(2).hasFocus());
        QTest::keyClick(&bench.crumb(2), Qt::Key_Return);
        QCOMPARE(bench.fixture.editor.selText(), u"<p><b></b></p>"_s);
        QVERIFY(bench.fixture.editor.hasFocus());
        bench.crumb(1).setFocus();
        QTest::keyClick(&bench.crumb(1), Qt::Key_Escape);
        QVERIFY(bench.fixture.editor.hasFocus());
    }

    void onlyForMarkup()
    {
        Line bench(u"C/C++"_s);
        QVERIFY(!bench.line->isVisible());
        bench.fixture.editor.setLanguage(u"XML"_s);
        bench.line->takeLanguage();
        bench.fixture.setMarked(u"<A><B/>|</A>"_s);
        QCOMPARE(bench.captions(), QStringList{u"A"_s});
        QVERIFY(bench.line->isVisible());
        // Set without a word; the next key finds it out.
        bench.fixture.editor.setLanguage({});
        bench.fixture.type(u"x"_s);
        QTRY_VERIFY(!bench.line->isVisible());
    }

    void goesWithTheText()
    {
        Line bench;
        QVERIFY(bench.line->isVisible());
        bench.fixture.editor.hide();
        QVERIFY(!bench.line->isVisible());
        bench.fixture.editor.show();
        QVERIFY(bench.line->isVisible());
        bench.line->setOn(false);
        QVERIFY(!bench.line->isVisible());
        bench.fixture.editor.hide();
        bench.fixture.editor.show();
        QVERIFY(!bench.line->isVisible());
    }

    /// The window may be as narrow as without the line; then the innermost elements are seen.
    void theInnermostStayInSight()
    {
        Line bench;
        bench.fixture.setMarked(QString(u"<div class=content>"_s).repeated(60) + u'|');
        QStringList captions = bench.captions();
        QVERIFY(captions.size() > 2 && captions.size() < 60);
        QVERIFY(bench.line->findChild<QWidget *>(u"breadcrumbMore"_s)->isVisible());
        bench.fixture.window.resize(300, 200);
        captions = bench.captions();
        QVERIFY(!captions.isEmpty() && captions.size() < 4);
        QCOMPARE(bench.line->minimumSizeHint().width(), 0);
        bench.fixture.setMarked(u"<p>|"_s);
        QCOMPARE(bench.captions(), QStringList{u"p"_s});
        QVERIFY(!bench.line->findChild<QWidget *>(u"breadcrumbMore"_s)->isVisible());
    }

    /// The outermost is where reading begins, and the arrow keys go where they point.
    void fromRightToLeft()
    {
        Line bench;
        bench.fixture.setMarked(u"<div><p>|"_s);
        QCOMPARE(bench.captions(), (QStringList{u"div"_s, u"p"_s}));
        auto *outer = bench.line->findChild<QToolButton *>(u"crumb_1"_s);
        auto *inner = bench.line->findChild<QToolButton *>(u"crumb_2"_s);
        QVERIFY(outer->geometry().right() < inner->x());
        bench.line->setLayoutDirection(Qt::RightToLeft);
        bench.fixture.window.resize(bench.fixture.window.width() + 10, bench.fixture.window.height());
        QTRY_VERIFY(inner->geometry().right() < outer->x());
        QVERIFY(outer->geometry().right() > bench.line->width() - 20);
        outer->setFocus();
        QTest::keyClick(outer, Qt::Key_Left);
        QVERIFY(inner->hasFocus());
        QTest::keyClick(inner, Qt::Key_Right);
        QVERIFY(outer->hasFocus());
    }

    void tenThousandLevels()
    {
        Line bench;
        bench.fixture.editor.setText(QString(u"<div>"_s).repeated(10'000));
        bench.fixture.editor.select({0, 50'000, 0, 50'000});
        QElapsedTimer time;
        time.start();
        QVERIFY(!bench.captions().isEmpty());
        QVERIFY(time.elapsed() < pace * 1000);
    }

    /// Keys in a large text don't wait for the line.
    void tenMegabytes()
    {
        Line bench;
        bench.fixture.editor.setText(u"<body>"_s + QString(u"<p class=a>text</p>\r\n"_s).repeated(500'000));
        bench.fixture.editor.select({500'000, 0, 500'000, 0});
        QTRY_COMPARE(bench.line->captions(), QStringList{u"body"_s});
        bench.fixture.type(u"<ul>"_s);
        QCOMPARE(bench.captions(), (QStringList{u"body"_s, u"ul"_s}));
        bench.fixture.editor.select({0, 6, 0, 6});
        QCOMPARE(bench.captions(), QStringList{u"body"_s});
    }
};

ZEPHIRA_TEST(TstBreadcrumb)

#include "tst_breadcrumb.moc"
