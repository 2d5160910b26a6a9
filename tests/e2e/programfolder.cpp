// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"

#include "files/iniconfiguration.h"
#include "support/diskfiles.h"
#include "support/sourcefolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

void copyTree(const QString &from, const QString &to)
{
    const QDir source(from);
    QDirIterator files(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        // The build makes the handbook from these; its tests take it from there.
        if (source.relativeFilePath(file).startsWith(u"help/"))
            continue;
        const QString target = to + u'/' + source.relativeFilePath(file);
        QVERIFY(QDir().mkpath(QFileInfo(target).path()));
        QVERIFY2(QFile::copy(file, target), qPrintable(target));
        QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner));
    }
}

} // namespace

ProgramFolder::ProgramFolder()
{
    const QString program = QStringLiteral(ZEPHIRA_PROGRAM);
    QVERIFY2(QFile::exists(program), qPrintable(program));
    copyTree(sourcePath(u"data"_s), path());
    QVERIFY(QDir().mkpath(home()));
    QVERIFY(QFile::copy(program, executable()));
    // The modules are next to the program, the extensions in their folders.
    const QDir built = QFileInfo(program).dir();
    for (const QString &folder : {u"."_s, u"plugins"_s, u"wizards"_s}) {
        QVERIFY(QDir().mkpath(path() + u'/' + folder));
        const QStringList modules = QDir(built.filePath(folder)).entryList({u"*.so"_s}, QDir::Files);
        for (const QString &module : modules)
            QVERIFY(QFile::copy(built.filePath(folder + u'/' + module), path() + u'/' + folder + u'/' + module));
    }
    QVERIFY(QFile::copy(QStringLiteral(ZEPHIRA_NAMES), path() + u"/deps/names.dic"_s));
    const QDir translations(QStringLiteral(ZEPHIRA_TRANSLATIONS));
    QVERIFY(QDir().mkpath(path() + u"/translations"_s));
    const QStringList languages = translations.entryList({u"*.qm"_s}, QDir::Files);
    for (const QString &language : languages)
        QVERIFY(QFile::copy(translations.filePath(language), path() + u"/translations/"_s + language));
    setTips(false);
    setIni(u"Startup"_s, u"selprj"_s, u"0"_s);
}

QString ProgramFolder::write(const QString &name, const QByteArray &content) const
{
    return putFile(place(name), content);
}

QStringList ProgramFolder::recoveryCopies() const
{
    const QDir folder(home() + u"/.config/Zephira/recovery"_s);
    QStringList paths;
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names)
        paths.append(folder.filePath(name));
    return paths;
}

QByteArray ProgramFolder::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ProgramFolder::setIni(const QString &section, const QString &key, const QString &value) const
{
    QVERIFY(WriteIni(section, key, value, ini()));
}

void ProgramFolder::setTips(bool on) const
{
    const QString folder = home() + u"/.config"_s;
    QVERIFY(QDir().mkpath(folder + u"/Zephira"_s));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, u"Zephira"_s, u"Zephira"_s);
    settings.setValue(u"zephira/Options/Show Tips at Startup"_s, on ? u"1"_s : u"0"_s);
    settings.sync();
    QCOMPARE(settings.status(), QSettings::NoError);
}

} // namespace zephira
