// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datafile.h"
#include "panes/sottree.h"
#include "support/testregistry.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// For each line the captions from the root down to its node, joined by a separator that occurs in no caption.
QStringList pathsOf(const QStringList &lines)
{
    QStringList path;
    QStringList paths;
    for (const QString &line : lines) {
        qsizetype depth = 0;
        while (line.startsWith(QString(depth + 1, u'\t')))
            ++depth;
        path = path.first(std::min(depth, path.size()));
        path << line.sliced(depth);
        paths << path.join(u" » "_s);
    }
    return paths;
}

} // namespace

/// The two trees of the object and event browser.
class TstShippedTrees final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isATree_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("atLeast");
        QTest::newRow("objects") << u"deps/jsobjects.sot"_s << 600;
        QTest::newRow("events") << u"deps/jsevents.sot"_s << 200;
    }

    void isATree()
    {
        QFETCH(QString, file);
        QFETCH(int, atLeast);
        QCOMPARE(faultOf(file, u"\n"_s, true), QString());
        const QStringList lines = shippedLines(file);
        QVERIFY(lines.size() >= atLeast);
        qsizetype above = -1;
        for (const QString &line : lines) {
            const QString caption = QString(line).remove(u'\t');
            const qsizetype depth = line.size() - caption.size();
            QVERIFY2(depth <= above + 1, qPrintable(line));
            QVERIFY2(!caption.trimmed().isEmpty() && isBalanced(caption), qPrintable(line));
            above = depth;
        }
        // No node has two children with the same caption, so each path leads to one node.
        QCOMPARE(repeated(pathsOf(lines)), QStringList());
    }

    void isReadToItsEnd_data() { isATree_data(); }

    void isReadToItsEnd()
    {
        QFETCH(QString, file);
        const QStringList lines = shippedLines(file);
        const SotTree tree = parseSotTree(lines);
        QCOMPARE(tree.faultyLine, qsizetype{0});
        const QStringList paths = pathsOf(lines);
        QCOMPARE(static_cast<qsizetype>(tree.nodes.size()), paths.size());
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const SotTree::Node &node = tree.nodes[static_cast<std::size_t>(i)];
            const QString parent = node.parent < 0 ? QString() : paths[node.parent] + u" » "_s;
            QCOMPARE(parent + node.caption, paths[i]);
        }
    }

    void holds_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("path");
        const auto rows = [](const QString &file, const QStringList &paths) {
            for (const QString &path : paths)
                QTest::newRow(qPrintable(path)) << file << path;
        };
        rows(u"deps/jsobjects.sot"_s,
             {u"window » alert()"_s,
              u"window » performance » now()"_s,
              u"document » getElementById()"_s,
              u"document » querySelectorAll()"_s,
              u"navigator » clipboard » writeText()"_s,
              u"location » href"_s,
              u"history » pushState()"_s,
              u"localStorage » setItem()"_s,
              u"console » log()"_s,
              u"Node » appendChild()"_s,
              u"Element » classList"_s,
              u"Element » closest()"_s,
              u"HTMLElement » dataset"_s,
              u"HTMLElement » HTMLInputElement » value"_s,
              u"HTMLElement » HTMLDialogElement » showModal()"_s,
              u"HTMLElement » HTMLMediaElement » HTMLVideoElement » videoWidth"_s,
              u"Event » preventDefault()"_s,
              u"Event » MouseEvent » clientX"_s,
              u"Request » new Request()"_s,
              u"Response » json()"_s,
              u"Headers » get()"_s,
              u"FormData » append()"_s,
              u"URL » searchParams"_s,
              u"URLSearchParams » get()"_s,
              u"CanvasRenderingContext2D » fillRect()"_s,
              u"Array » Array.from()"_s,
              u"Array » map()"_s,
              u"Map » set()"_s,
              u"Promise » Promise.all()"_s,
              u"Promise » then()"_s,
              u"RegExp » exec()"_s,
              u"Date » toISOString()"_s,
              u"JSON » JSON.parse()"_s,
              u"Math » Math.random()"_s,
              u"Object » Object.entries()"_s,
              u"String » padStart()"_s,
              u"Number » toFixed()"_s,
              u"Symbol » Symbol.iterator"_s,
              u"Reflect » Reflect.ownKeys()"_s,
              u"Proxy » new Proxy(target, { })"_s,
              u"Uint8Array » subarray()"_s,
              u"Intl » Intl.NumberFormat » format()"_s});
        rows(u"deps/jsevents.sot"_s,
             {u"MouseEvent » click » onclick"_s,
              u"PointerEvent » pointerdown » onpointerdown"_s,
              u"KeyboardEvent » keydown » document"_s,
              u"KeyboardEvent » event.key"_s,
              u"FocusEvent » blur » onblur"_s,
              u"InputEvent » input » oninput"_s,
              u"HTMLFormElement » submit » onsubmit"_s,
              u"HTMLInputElement » change » onchange"_s,
              u"ClipboardEvent » paste » onpaste"_s,
              u"DragEvent » event.dataTransfer"_s,
              u"TouchEvent » touchstart » ontouchstart"_s,
              u"WheelEvent » event.deltaY"_s,
              u"HTMLMediaElement » timeupdate » HTMLVideoElement"_s,
              u"document » visibilitychange » onvisibilitychange"_s,
              u"window » beforeunload » onbeforeunload"_s,
              u"window » online » ononline"_s,
              u"window » afterprint » onafterprint"_s,
              u"AnimationEvent » animationend » onanimationend"_s,
              u"TransitionEvent » event.propertyName"_s,
              u"StorageEvent » storage » window"_s,
              u"MessageEvent » event.data"_s,
              u"DeviceOrientationEvent » event.alpha"_s,
              u"Event » event.preventDefault()"_s});
    }

    void holds()
    {
        QFETCH(QString, file);
        QFETCH(QString, path);
        QVERIFY(pathsOf(shippedLines(file)).contains(path));
    }

    void eventsHaveAListener()
    {
        const QStringList paths = pathsOf(shippedLines(u"deps/jsevents.sot"_s));
        const QSet<QString> known(paths.begin(), paths.end());
        for (const QString &path : paths) {
            const QStringList parts = path.split(u" » "_s);
            if (parts.size() == 2 && !parts[1].startsWith(u"event."_s)) {
                const QString listener = u" » addEventListener(\"%1\", (event) => { })"_s.arg(parts[1]);
                QVERIFY2(known.contains(path + listener), qPrintable(path));
            }
            // A property that holds a handler is named after its event.
            if (parts.size() == 3 && parts[2].startsWith(u"on"_s))
                QCOMPARE(parts[2], u"on"_s + parts[1]);
        }
    }

    void eventsWithoutAProperty_data()
    {
        QTest::addColumn<QString>("event");
        for (const char *event : {"FocusEvent » focusin", "FocusEvent » focusout", "document » DOMContentLoaded",
                                  "CompositionEvent » compositionend", "HTMLCanvasElement » webglcontextlost"})
            QTest::newRow(event) << QString::fromUtf8(event);
    }

    void eventsWithoutAProperty()
    {
        QFETCH(QString, event);
        const QStringList paths = pathsOf(shippedLines(u"deps/jsevents.sot"_s));
        QVERIFY(paths.contains(event));
        QVERIFY(paths.filter(event + u" » on"_s).isEmpty());
    }
};

ZEPHIRA_TEST(TstShippedTrees)

#include "tst_shippedtrees.moc"
