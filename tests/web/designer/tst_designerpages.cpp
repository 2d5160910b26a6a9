// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/installedpages.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QMap>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// As many pages are looked at, most of them with a style sheet and a script, and no more of one package.
constexpr qsizetype wantedPages = 200;
constexpr qsizetype wantedDressed = 180;
constexpr qsizetype mostOfOnePackage = 40;

QStringList realPages()
{
    const QStringList dressed = installedPages(wantedDressed, isDressed);
    return dressed
        + installedPages(wantedPages - dressed.size(), [](const QByteArray &page) { return !isDressed(page); });
}

} // namespace

/// A page isn't changed by being shown, whatever it is still loading.
class TstDesignerPages final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanup() { m_bench.reset(); }

    void waitingParts_data();
    void waitingParts();
    void idleScripts_data();
    void idleScripts();
    void realPagesStayAsTheyAre();

private:
    /// Loads a file; returns what is wrong with it in the designer without any edit, or nothing.
    QString harm(const QString &path);

    std::unique_ptr<DesignerBench> m_bench;
};

QString TstDesignerPages::harm(const QString &path)
{
    DesignerWidget &designer = m_bench->designer;
    designer.loadDocument(path);
    const QString source = designer.documentHtml();
    m_bench->awaitComplete();
    // Any report of a change would arrive before this answer.
    m_bench->ask(u"null"_s);
    if (m_bench->ask(u"document.readyState"_s).toString() == u"loading")
        return u"half a page"_s;
    if (designer.isDirty() || designer.documentHtml() != source)
        return u"dirty"_s;
    if (m_bench->status(DesignerCommand::Undo) >= DesignerStatus::Enabled)
        return u"something to undo"_s;
    m_bench->run(DesignerCommand::Undo);
    return designer.isDirty() || designer.documentHtml() != source ? u"changed by undo"_s : QString();
}

void TstDesignerPages::waitingParts_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("body");
    const QByteArray sheet = "<link rel=\"stylesheet\" href=\"s.css\">";
    QTest::newRow("nothing") << QByteArray() << QByteArray();
    QTest::newRow("a script") << sheet + "<script src=\"s.js\"></script>" << QByteArray();
    QTest::newRow("a script of the page") << sheet + "<script>let a = 1;</script>" << QByteArray();
    QTest::newRow("a script in capitals") << sheet + "<SCRIPT SRC=s.js></SCRIPT>" << QByteArray();
    QTest::newRow("a script for others") << sheet + "<script nomodule src=\"s.js\"></script>" << QByteArray();
    QTest::newRow("a module") << sheet + "<script type=\"module\" src=\"s.js\"></script>" << QByteArray();
    QTest::newRow("a sheet in the body") << QByteArray() << sheet;
    QTest::newRow("a script in the body") << sheet << QByteArray("<script async src=\"s.js\"></script>");
    QTest::newRow("a drawing's script") << sheet << QByteArray("<svg><script href=\"s.js\"></script></svg>");
}

void TstDesignerPages::waitingParts()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, body);
    m_bench->write(u"s.css"_s, QByteArray(200000, ' ') + "p { color: red }");
    m_bench->write(u"s.js"_s, "document.title = 'x';");
    const QByteArray page = "<html><head>" + head + "</head><body>" + body + "<!-- a --><p>b</p></body></html>";
    QCOMPARE(harm(m_bench->write(u"page.html"_s, page)), QString());
    // Each comment has its mark.
    QCOMPARE(m_bench->ask(u"document.querySelectorAll('zephira-mark').length"_s).toInt(), 1);
}

void TstDesignerPages::idleScripts_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("plain") << u"<script src=\"s.js\"></script>"_s;
    QTest::newRow("with values") << u"<script type=\"text/javascript\" src=\"s.js\" id=\"s\"></script>"_s;
    QTest::newRow("with a text") << u"<script>if (a < b) c();</script>"_s;
    QTest::newRow("for others") << u"<script nomodule src=\"s.js\"></script>"_s;
    QTest::newRow("for others, after it") << u"<script src=\"s.js\" nomodule></script>"_s;
    QTest::newRow("in no script") << u"<noscript><script src=\"s.js\"></script></noscript>"_s;
    QTest::newRow("in a template") << u"<template><script src=\"s.js\"></script></template>"_s;
    QTest::newRow("with server code") << u"<script src=\"<%= s %>\"></script>"_s;
    QTest::newRow("two") << u"<script src=\"s.js\"></script><script src=\"t.js\"></script>"_s;
}

/// The markup that keeps the engine from waiting for scripts gets neither into the text nor onto the clipboard.
void TstDesignerPages::idleScripts()
{
    QFETCH(QString, script);
    const QString page = u"<html>\r\n<head></head>\r\n<body>"_s + script + u"<p>a</p>\r\n</body></html>"_s;
    m_bench->load(page);
    m_bench->ask(u"document.querySelector('p').firstChild.appendData('b'); null"_s);
    m_bench->awaitChange();
    QString expected = page;
    QCOMPARE(m_bench->designer.documentHtml(), expected.replace(u"<p>a"_s, u"<p>ab"_s));
    m_bench->run(DesignerCommand::SelectAll);
    m_bench->run(DesignerCommand::Copy);
    m_bench->run(DesignerCommand::Paste);
    QVERIFY(!m_bench->designer.documentHtml().contains(u"nomodule=\""));
}

void TstDesignerPages::realPagesStayAsTheyAre()
{
    const QStringList pages = realPages();
    QCOMPARE(pages.size(), wantedPages);
    QMap<QString, int> packages;
    QStringList harmed;
    for (const QString &path : pages) {
        QVERIFY2(++packages[packageFolder(path)] <= mostOfOnePackage, qPrintable(path));
        if (const QString how = harm(path); !how.isEmpty())
            harmed.append(path + u": "_s + how);
    }
    QVERIFY2(harmed.isEmpty(), qPrintable(harmed.join(u'\n')));
}

ZEPHIRA_TEST(TstDesignerPages)
#include "tst_designerpages.moc"
