// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/goldencases.h"

#include "support/fakes.h"
#include "support/formkit.h"
#include "support/sourcefolder.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

QByteArray goldenContent(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(u"%1 can't be read"_s.arg(path)), "the golden cases", 0);
    return file.readAll();
}

QStringList goldenLines(const QString &path)
{
    return QString::fromUtf8(goldenContent(path)).split(u'\n', Qt::SkipEmptyParts);
}

void playGoldenStep(const LivingForm &form, const QString &step)
{
    if (step.startsWith(u"press ")) {
        form.press(step.mid(6));
        return;
    }
    const qsizetype sign = step.indexOf(u" =");
    if (sign < 0)
        qFatal("\"%s\" is no step of a golden case", qPrintable(step));
    form.set(step.left(sign), step.mid(sign + 3));
}

void addGoldenCases(const QString &area)
{
    QTest::addColumn<QString>("folder");
    const QDir folder(sourcePath(u"tests/golden/"_s) + area);
    const QStringList cases = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QVERIFY2(!cases.isEmpty(), qPrintable(folder.path()));
    for (const QString &name : cases)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void playGoldenCase(const FormCatalogue &catalogue, const QString &folder)
{
    playGoldenCase([&](TestContext &) { return catalogue; }, folder,
                   [](TestContext &, const LivingForm &, const QString &) { return false; });
}

void playGoldenCase(const std::function<FormCatalogue(TestContext &world)> &makeCatalogue, const QString &folder,
                    const GoldenStep &ownStep)
{
    const QStringList lines = goldenLines(folder + u"/fields.txt"_s);
    QVERIFY2(!lines.isEmpty() && lines.first().startsWith(u"form "), "the first line names the form");
    TestContext world;
    const LivingForm form(makeCatalogue(world), lines.first().mid(5), world);
    const QStringList steps = lines.sliced(1);
    for (const QString &step : steps) {
        if (!ownStep(world, form, step))
            playGoldenStep(form, step);
    }
    const QString inserted = world.inserter.inserted.join(QString()) + world.editor.text();
    QCOMPARE(inserted.toUtf8(), goldenContent(folder + u"/expected.html"_s));
}

} // namespace zephira
