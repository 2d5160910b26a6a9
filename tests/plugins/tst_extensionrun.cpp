// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/extensionfolder.h"
#include "plugins/extensionrun.h"
#include "plugins/modulebench.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <ctime>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstExtensionRun final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bench = std::make_unique<ModuleBench>();
        m_folder = std::make_unique<ExtensionFolder>(pluginKind, m_bench->path());
        m_run = std::make_unique<ExtensionRun>(*m_folder);
        m_delivered.clear();
    }

    void results_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("delivered");
        QTest::addColumn<QStringList>("reads");
        QTest::newRow("done at once") << u"plain"_s << QStringList{u"[plain]"_s, u"language 8"_s, u"finished"_s}
                                      << QStringList{u"start"_s, u"text"_s, u"language"_s};
        QTest::newRow("works a while") << u"works"_s << QStringList{u"[works]"_s, u"language 8"_s, u"finished"_s}
                                       << QStringList{u"start"_s, u"start"_s, u"start"_s,
                                                      u"start"_s, u"text"_s,  u"language"_s};
        QTest::newRow("another answer than 1") << u"two"_s << QStringList{u"[two]"_s, u"language 8"_s, u"finished"_s}
                                               << QStringList{u"start"_s, u"text"_s, u"language"_s};
        QTest::newRow("nothing to say") << u"silent"_s << QStringList() << QStringList{u"start"_s, u"text"_s};
        QTest::newRow("a language too far")
            << u"farlanguage"_s << QStringList{u"[farlanguage]"_s} << QStringList{u"start"_s, u"text"_s, u"language"_s};
        QTest::newRow("a negative language") << u"minuslanguage"_s << QStringList{u"[minuslanguage]"_s}
                                             << QStringList{u"start"_s, u"text"_s, u"language"_s};
        QTest::newRow("a word as language") << u"wordlanguage"_s << QStringList{u"[wordlanguage]"_s}
                                            << QStringList{u"start"_s, u"text"_s, u"language"_s};
        QTest::newRow("throws at the start") << u"throwsstart"_s << QStringList() << QStringList{u"start"_s};
        QTest::newRow("throws its text") << u"throwstext"_s << QStringList() << QStringList{u"start"_s, u"text"_s};
        QTest::newRow("throws its language") << u"throwslanguage"_s << QStringList{u"[throwslanguage]"_s}
                                             << QStringList{u"start"_s, u"text"_s, u"language"_s};
        QTest::newRow("vanishes") << u"vanishes"_s << QStringList() << QStringList{u"start"_s};
        QTest::newRow("vanishes later") << u"vanisheslater"_s << QStringList() << QStringList{u"start"_s};
    }

    void results()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, reads);
        m_bench->plugin(name + u".so"_s);
        run(name);
        QTEST(m_delivered, "delivered");
        QStringList log{u"new "_s + name};
        for (const QString &read : std::as_const(reads))
            log.append(name + u'.' + read);
        log.append(u"delete "_s + name);
        QCOMPARE(takeLog(), log);
    }

    void eachRunHasItsOwnObject()
    {
        m_bench->plugin(u"silent.so"_s);
        run(u"silent"_s);
        run(u"silent"_s);
        QCOMPARE(takeLog().filter(u"new"_s).size(), 2);
    }

    /// An exception out of an event that is handled while a run waits ends the run, and events go on.
    void anEventThrows()
    {
        m_bench->plugin(u"throwsevent.so"_s);
        m_bench->plugin(u"works.so"_s);
        run(u"throwsevent"_s);
        QCOMPARE(m_delivered, QStringList());
        QVERIFY(takeLog().contains(u"delete throwsevent"_s));
        run(u"works"_s);
        QCOMPARE(m_delivered.first(), u"[works]"_s);
        bool fired = false;
        QTimer::singleShot(5, this, [&fired] { fired = true; });
        QTRY_VERIFY(fired);
    }

    void nothingToRun_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("no module") << u"none"_s;
        QTest::newRow("no object") << u"unknown"_s;
        QTest::newRow("no constructor") << u"throwsnew"_s;
        QTest::newRow("no members") << u"bare"_s;
    }

    void nothingToRun()
    {
        QFETCH(QString, name);
        if (name == u"bare")
            m_bench->plugin(u"bare.so"_s, testmodule::bare());
        else if (name != u"none")
            m_bench->plugin(name + u".so"_s);
        run(name);
        QCOMPARE(m_delivered, QStringList());
    }

    void theFileVanishesDuringTheRun()
    {
        const QString path = m_bench->plugin(u"works.so"_s);
        QTimer::singleShot(0, this, [path] { QFile::remove(path); });
        run(u"works"_s);
        QVERIFY(!QFile::exists(path));
        QCOMPARE(m_delivered.first(), u"[works]"_s);
        m_delivered.clear();
        run(u"works"_s);
        QCOMPARE(m_delivered, QStringList());
    }

    /// It is asked again and again, events are handled in between, and waiting costs little.
    void anEndlessOne()
    {
        m_bench->plugin(u"endless.so"_s);
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
        timer.start(10);
        QTimer::singleShot(500, this, [this] { m_run->abandon(); });
        const std::clock_t before = std::clock();
        run(u"endless"_s);
        const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        QVERIFY2(ticks > 10, qPrintable(QString::number(ticks)));
        QVERIFY2(seconds < 0.3, qPrintable(QString::number(seconds)));
        const qsizetype starts = takeLog().count(u"endless.start"_s);
        QVERIFY2(starts > 20, qPrintable(QString::number(starts)));
        QCOMPARE(m_delivered, QStringList());
    }

    /// The end of the program ends all event loops, and the run as well.
    void theProgramEnds()
    {
        m_bench->plugin(u"endless.so"_s);
        bool ended = false;
        QTimer::singleShot(0, this, [&] {
            QTimer::singleShot(30, this, [] { QCoreApplication::exit(7); });
            run(u"endless"_s);
            ended = true;
        });
        QCOMPARE(QCoreApplication::exec(), 7);
        QVERIFY(ended);
        QCOMPARE(m_delivered, QStringList());
    }

    /// A later run takes the place of the one that waits, which then ends without a result.
    void aSecondRun()
    {
        m_bench->plugin(u"endless.so"_s);
        m_bench->plugin(u"plain.so"_s);
        QTimer::singleShot(20, this, [this] { run(u"plain"_s); });
        run(u"endless"_s);
        QCOMPARE(m_delivered, (QStringList{u"[plain]"_s, u"language 8"_s, u"finished"_s}));
        const QStringList log = takeLog();
        QCOMPARE(log.mid(log.indexOf(u"new plain"_s)),
                 (QStringList{u"new plain"_s, u"plain.start"_s, u"plain.text"_s, u"plain.language"_s, u"delete plain"_s,
                              u"delete endless"_s}));
    }

    /// A second run that can't begin leaves the first one alone.
    void aSecondRunThatFails()
    {
        m_bench->plugin(u"waits.so"_s);
        m_bench->plugin(u"throwsnew.so"_s);
        QTimer::singleShot(5, this, [this] { run(u"throwsnew"_s); });
        run(u"waits"_s);
        QCOMPARE(m_delivered, (QStringList{u"[waits]"_s, u"language 8"_s, u"finished"_s}));
    }

    /// A second run of a module that is its own object shares that object.
    void aSecondRunOfTheSameObject()
    {
        m_bench->plugin(u"lonely.so"_s, testmodule::lonely());
        QTimer::singleShot(5, this, [this] { run(u"lonely"_s); });
        run(u"lonely"_s);
        QCOMPARE(m_delivered, (QStringList{u"[lonely 2]"_s, u"language 2"_s, u"finished"_s}));
        m_delivered.clear();
        run(u"lonely"_s);
        QCOMPARE(m_delivered.first(), u"[lonely 1]"_s);
    }

    void membersAsFunctions()
    {
        m_bench->plugin(u"functions.so"_s);
        run(u"functions"_s);
        QCOMPARE(m_delivered, (QStringList{u"[functions]"_s, u"language 3"_s, u"finished"_s}));
        QCOMPARE(takeLog(), QStringList{u"functions.start"_s});
    }

    void abandonedRunsEndAndLaterOnesRun()
    {
        m_bench->plugin(u"works.so"_s);
        m_run->abandon();
        run(u"works"_s);
        QCOMPARE(m_delivered.first(), u"[works]"_s);
    }

    void theShippedFiller()
    {
        m_bench->plugin(u"filler.so"_s, testmodule::filler());
        QStringList texts;
        for (int i = 0; i < 6; ++i) {
            run(u"filler"_s);
            texts.append(m_delivered.first());
            QCOMPARE(m_delivered.mid(1), (QStringList{u"language 1"_s, u"finished"_s}));
            m_delivered.clear();
        }
        QCOMPARE(texts.last(), texts.first());
        texts.removeLast();
        QCOMPARE(texts.removeDuplicates(), 0);
    }

private:
    void run(const QString &base)
    {
        m_run->run(base + u".Main"_s,
                   {.useText = [this](const QString &text) { m_delivered.append(text); },
                    .setLanguage = [this](int row) { m_delivered.append(u"language %1"_s.arg(row)); },
                    .finish = [this] { m_delivered.append(u"finished"_s); }});
    }

    std::unique_ptr<ModuleBench> m_bench;
    std::unique_ptr<ExtensionFolder> m_folder;
    std::unique_ptr<ExtensionRun> m_run;
    QStringList m_delivered;
};

ZEPHIRA_TEST(TstExtensionRun)
#include "tst_extensionrun.moc"
