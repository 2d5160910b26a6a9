// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/iniconfiguration.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct Outcome {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

Outcome run(const QString &program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

const QString saveProbe = QStringLiteral(SAVEPROBE);
const QString iniProbe = QStringLiteral(INIPROBE);
const QString parseProbe = QStringLiteral(PARSEPROBE);

} // namespace

/// The programs that external tests rely on: what they print, and that their exit status is right.
class TstProbes : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString at(const QString &name) const { return m_folder.filePath(name); }
    void put(const QString &name, const QByteArray &content) const { putFile(at(name), content); }
    QByteArray get(const QString &name) const { return contentOf(at(name)); }

private Q_SLOTS:
    void saveProbeCopiesEveryByte()
    {
        const QByteArray bytes("\xFF\xFE odd \r\n\0\x81\n", 13);
        put(u"in"_s, bytes);
        QCOMPARE(run(saveProbe, {at(u"in"_s), at(u"out"_s)}).status, 0);
        QCOMPARE(get(u"out"_s), bytes);
        QCOMPARE(run(saveProbe, {at(u"in"_s), at(u"in"_s)}).status, 0);
        QCOMPARE(get(u"in"_s), bytes);
    }

    void saveProbeTellsFailures()
    {
        const Outcome missing = run(saveProbe, {at(u"none"_s), at(u"out2"_s)});
        QCOMPARE(missing.status, 1);
        QCOMPARE(missing.errors,
                 u"The file \"%1\" could not be read: it does not exist.\n"_s.arg(at(u"none"_s)).toUtf8());
        put(u"in"_s, "x");
        const Outcome unwritable = run(saveProbe, {at(u"in"_s), at(u"none/out"_s)});
        QCOMPARE(unwritable.status, 1);
        QCOMPARE(unwritable.errors,
                 u"The file \"%1\" could not be saved: its folder does not exist.\n"_s.arg(at(u"none/out"_s)).toUtf8());
        QCOMPARE(run(saveProbe, {}).status, 1);
    }

    void iniProbeWrites()
    {
        QCOMPARE(run(iniProbe, {at(u"a.ini"_s), u"s"_s, u"k"_s, u"3"_s}).status, 0);
        QCOMPARE(get(u"a.ini"_s), QByteArray("[s]\r\nk0=0\r\nk1=1\r\nk2=2\r\n"));
        put(u"value"_s, "two\nlines");
        QCOMPARE(run(iniProbe, {at(u"a.ini"_s), u"s"_s, u"k1"_s, u'@' + at(u"value"_s)}).status, 0);
        QCOMPARE(ReadIni(u"s"_s, u"k1"_s, at(u"a.ini"_s)), u"two lines"_s);
        QCOMPARE(run(iniProbe, {at(u"none/a.ini"_s), u"s"_s, u"k"_s, u"1"_s}).status, 1);
        QCOMPARE(run(iniProbe, {at(u"a.ini"_s), u"s"_s, u"k"_s, u"many"_s}).status, 1);
        QCOMPARE(run(iniProbe, {at(u"a.ini"_s), u"s"_s, u"k"_s, u'@' + at(u"none"_s)}).status, 1);
    }

    void parseProbePrints_data()
    {
        QTest::addColumn<QString>("parser");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("ini") << u"ini"_s << QByteArray("[s]\nk = 'v'\n") << QByteArray("s\tk\tv\n");
        QTest::newRow("textfile") << u"textfile"_s << QByteArray("\xE4\r\n")
                                  << QByteArray("Windows-1252 plain CRLF\n\xC3\xA4\r\n");
        QTest::newRow("textfile, mark") << u"textfile"_s
                                        << QByteArray("\xEF\xBB\xBF"
                                                      "a\n")
                                        << QByteArray("UTF-8 mark LF\na\n");
        QTest::newRow("textfile, empty") << u"textfile"_s << QByteArray() << QByteArray("UTF-8 plain CRLF\n");
    }

    void parseProbePrints()
    {
        QFETCH(QString, parser);
        QFETCH(QByteArray, input);
        const Outcome outcome = run(parseProbe, {parser}, input);
        QCOMPARE(outcome.status, 0);
        QTEST(outcome.output, "output");
    }

    void parseProbeKnowsItsNames()
    {
        QCOMPARE(run(parseProbe, {u"nonsense"_s}).status, 1);
        const Outcome names = run(parseProbe, {});
        QCOMPARE(names.status, 0);
        QVERIFY(names.output.split('\n').contains("ini"));
    }
};

ZEPHIRA_TEST(TstProbes)

} // namespace zephira

#include "tst_probes.moc"
