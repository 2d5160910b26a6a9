// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/sourcefolder.h"
#include "support/testregistry.h"
#include "syntax/styled.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

/// The languages by example: each file in samples/ names its language in its first line, and each of its cases is a row
/// here. A new file needs nothing else.
class TstSyntaxSamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sample_data();
    void sample();
    void crLfChangesNothing_data() { sample_data(); }
    void crLfChangesNothing();
};

void TstSyntaxSamples::sample_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("styles");

    const QDir samples(sourcePath(u"tests/syntax/samples"_s));
    const QStringList names = samples.entryList(QDir::Files, QDir::Name);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QFile file(samples.filePath(name));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        QByteArrayList cases = file.readAll().split('\n');
        static const QRegularExpression firstLine(u"^Language: ([^.]+)\\. "_s);
        const QString language = firstLine.match(QString::fromUtf8(cases.first())).captured(1);
        QVERIFY2(!language.isEmpty(), qPrintable(name + u" doesn't name its language in its first line"_s));
        while (!cases.isEmpty() && !cases.first().startsWith("== "))
            cases.removeFirst();
        QVERIFY2(!cases.isEmpty(), qPrintable(name + u" holds no case"_s));
        while (!cases.isEmpty()) {
            const QByteArray title = name.toUtf8() + ": " + cases.takeFirst().sliced(3);
            QByteArray text;
            QByteArray styles;
            while (cases.size() > 1 && !cases.first().startsWith("== ")) {
                text += cases.takeFirst() + '\n';
                styles += cases.takeFirst() + '\n';
            }
            if (cases.size() == 1 && cases.first().isEmpty())
                cases.removeFirst();
            QTest::newRow(title.constData()) << language << text << styles;
        }
    }
}

void TstSyntaxSamples::sample()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, styles);
    QVERIFY(!text.isEmpty());
    QCOMPARE(styleLetters(engineOf(language), text), styles);
}

void TstSyntaxSamples::crLfChangesNothing()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, styles);
    for (const char *lineEnd : {"\r\n", "\r"}) {
        const QByteArray converted = QByteArray(text).replace("\n", lineEnd);
        QCOMPARE(styleLetters(engineOf(language), converted), QByteArray(styles).replace("\n", lineEnd));
    }
}

ZEPHIRA_TEST(TstSyntaxSamples)

} // namespace zephira

#include "tst_samples.moc"
