// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/sourcefolder.h"
#include "support/testregistry.h"
#include "syntax/styled.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr struct {
    const char16_t *language;
    const char16_t *file;
} sampleFiles[] = {
    {u"HTML", u"html.txt"},   {u"XML", u"xml.txt"},       {u"C/C++", u"cpp.txt"}, {u"Java", u"java.txt"},
    {u"Basic", u"basic.txt"}, {u"Pascal", u"pascal.txt"}, {u"Perl", u"perl.txt"},
};

} // namespace

/// The languages by example: samples/ holds a file for each, and every case there is a row here.
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

    for (const auto &row : sampleFiles) {
        const QString name = QString::fromUtf16(row.file);
        QFile file(sourcePath(u"tests/syntax/samples/"_s) + name);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        // What stands before the first case explains the file.
        QByteArrayList cases = file.readAll().split('\n');
        while (!cases.isEmpty() && !cases.first().startsWith("== "))
            cases.removeFirst();
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
            QTest::newRow(title.constData()) << QString::fromUtf16(row.language) << text << styles;
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
