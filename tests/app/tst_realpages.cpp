// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "document/document.h"
#include "support/eventwait.h"
#include "support/installedpages.h"
#include "support/testregistry.h"

#include <QDir>
#include <QSet>

#include <filesystem>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype wantedPages = 20;
constexpr int fewestPackages = 8;
constexpr int timeToLoad = 300;

/// The page in a copy of all that its package's documentation has, below `folder`.
QString copyOf(const QString &page, const QString &folder)
{
    namespace fs = std::filesystem;
    const QString package = packageFolder(page);
    const QString copy = folder + u"/pages/"_s + QDir(package).dirName();
    if (!QDir(copy).exists()) {
        QDir().mkpath(QDir(copy).filePath(u".."_s));
        fs::copy(fs::path(package.toStdString()), fs::path(copy.toStdString()),
                 fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    }
    return copy + page.mid(package.size());
}

} // namespace

/// Real pages on a round trip through the views of the real window.
class TstRealPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRoundTripChangesNothing();

private:
    /// Opens the page, takes it through the views; returns what is wrong afterwards, or nothing.
    static QString harm(WebBench &bench, const QString &page);
};

QString TstRealPages::harm(WebBench &bench, const QString &page)
{
    const QByteArray content = WindowBench::read(page);
    bench.window->document().openFileOrImage(page);
    if (bench.window->docPath() != page)
        return u"not opened"_s;
    auto &rt = bench.window->rt();
    const QString text = rt.text();
    // From the code and away as soon as it can be, and from the preview, with time for all that belongs to the page.
    for (const int before : {1, 2}) {
        bench.select(before);
        if (!bench.design() || bench.html() != text)
            return u"not designed"_s;
        if (before == 2)
            waitUntil([] { return false; }, timeToLoad);
        if (bench.status(DesignerCommand::Undo) >= DesignerStatus::Enabled)
            return u"something to undo in the designer"_s;
        bench.choose(u"undo"_s);
        if (bench.designer().property("IsDirty").toBool())
            return u"dirty"_s;
        bench.select(1);
        if (rt.text() != text || bench.window->docModified())
            return u"changed"_s;
        if (bench.find<QObject>(u"rt"_s)->property("CanUndo").toBool())
            return u"something to undo"_s;
        bench.choose(u"undo"_s);
        if (rt.text() != text || bench.window->docModified())
            return u"changed by undo"_s;
    }
    if (WindowBench::read(page) != content)
        return u"written"_s;
    bench.choose(u"save"_s);
    return WindowBench::read(page) == content ? QString() : u"other bytes"_s;
}

void TstRealPages::aRoundTripChangesNothing()
{
    const QStringList pages = installedPages(wantedPages, isDressed);
    QCOMPARE(pages.size(), wantedPages);
    QSet<QString> packages;
    WebBench bench((QString()));
    QStringList harmed;
    for (const QString &page : pages) {
        packages.insert(packageFolder(page));
        if (const QString how = harm(bench, copyOf(page, bench.folder())); !how.isEmpty())
            harmed.append(page + u": "_s + how);
    }
    QVERIFY2(harmed.isEmpty(), qPrintable(harmed.join(u'\n')));
    QVERIFY2(packages.size() >= fewestPackages, qPrintable(packages.values().join(u", ")));
}

ZEPHIRA_TEST(TstRealPages)
#include "tst_realpages.moc"
