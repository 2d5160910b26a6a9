// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/structurecheck.h"
#include "problems/told.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// An engine that can't read anything.
class FailingTidy final : public TidyEngine
{
public:
    Result<Run> run(const QByteArray &, const std::vector<TidySetting> &, Steps, TidyWatch &) const override
    {
        return Error{Error::Code::TooLarge, u"Too deep."_s};
    }
};

} // namespace

/// How elements are nested.
class TstStructureCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &expected = {}) {
            QTest::newRow(name) << "<!DOCTYPE html><html lang=en><head><title>a</title></head><body>" + text
                    + "</body></html>"
                                << expected;
        };
        row("fine", "<ul><li>a</ul><dl><dt>b<dd>c</dl><p>d");
        row("block in a paragraph", "<p>a<div>b</div></p>", {u"80 </p: </p> closes nothing."_s});
        row("paragraph in a table", "<table><p>a</p><tr><td>x</table>",
            {u"71 <p: <p> isn't allowed in <table> elements."_s});
        row("behind a tab and another script", "\t\u05e9\u4e2d\U0001f600 <table><p>a</p><tr><td>x</table>",
            {u"82 <p: <p> isn't allowed in <table> elements."_s});
        row("behind lines", "\r\n\r\n\u05e9<table>\r\n<p>a</p><tr><td>x</table>",
            {u"79 <p: <p> isn't allowed in <table> elements."_s});
        row("link in a link", "<a href=x>y<a href=z>w</a></a>",
            {u"64 <a: Missing </a> before <a>."_s, u"90 </a: Discarding unexpected </a>."_s});
        row("form in a form", "<form><form></form></form>", {u"70 <form: <form> shouldn't be nested."_s});
        row("today's elements",
            "<search><p>a</p></search><details><summary>b</summary><p>c</p></details><x-y><li>d</li></x-y>"
            "<picture><source srcset=e><img alt='' src=f></picture><main><article><p>g</p></article></main>"
            "<a href=x><div>h</div></a><dialog><form method=dialog><button>i</button></form></dialog>"
            "<template><tr><td>j</td></tr></template><video><track></video><figure><figcaption>k</figcaption></figure>");
        row("drawings", "<p><svg><p><div><foreignObject><div></svg></p>");
        row("scripts", "<script>'</b><p><div>'</script><p>a</p>");
        row("unknown tags", "<p><blok>a</blok></p>", {u"67 <blok: The tag <blok> isn't known."_s});
    }

    void tells()
    {
        QFETCH(QByteArray, text);
        QTEST(told(orderFor(text)), "expected");
    }

    void failure()
    {
        const FailingTidy tidy;
        CheckOrder order = orderFor("<p>a</p>");
        order.tidy = &tidy;
        TidyWatch watch;
        QCOMPARE(checkDocument(order, watch).notes, QStringList{u"Too deep."_s});
        watch.cancel();
        QCOMPARE(checkDocument(order, watch).notes, QStringList());
    }
};

ZEPHIRA_TEST(TstStructureCheck)

#include "tst_structurecheck.moc"
