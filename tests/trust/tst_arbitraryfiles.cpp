// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codemax.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "support/scriptedprompts.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Bytes of a kind: pure chance, parts of pages, text in one of the encodings with marks, damage and line ends of all kinds.
QByteArray arbitraryBytes(QRandomGenerator &random)
{
    static const QByteArrayList parts{"<p class=\"a\">",
                                      "\r\n",
                                      "\n",
                                      "\r",
                                      "\0",
                                      "\xEF\xBB\xBF",
                                      "\xFF\xFE",
                                      "\xFE\xFF",
                                      "\xC3\xA4",
                                      "\xE4",
                                      "\x81",
                                      "\xED\xA0\x80",
                                      "\xF0\x9F\x98\x80",
                                      "\xF4\x90\x80\x80",
                                      "\xC0\x80",
                                      "\t",
                                      "\x1A",
                                      "\f",
                                      "\x0B",
                                      "\xC2\x85",
                                      "\xE2\x80\xA8",
                                      "<?php echo 1 ?>",
                                      "<meta charset=utf-16>",
                                      "a",
                                      " "};
    const int length = random.bounded(1, 400);
    QByteArray bytes;
    switch (random.bounded(4)) {
    case 0:
        for (int i = 0; i < length; ++i)
            bytes += static_cast<char>(random.bounded(256));
        return bytes;
    case 1:
        for (int i = 0; i < length; ++i)
            bytes += i % 7 == 0 && parts.size() > 4 ? QByteArray(1, '\0') : parts[random.bounded(parts.size())];
        return bytes;
    case 2: {
        QString text;
        for (int i = 0; i < length; ++i)
            text += QChar(random.bounded(3) == 0 ? random.bounded(0x10000) : random.bounded(0x80));
        const bool isLittle = random.bounded(2) == 0;
        bytes = isLittle ? "\xFF\xFE" : "\xFE\xFF";
        for (const QChar c : std::as_const(text)) {
            const char low = static_cast<char>(c.unicode() & 0xff);
            const char high = static_cast<char>(c.unicode() >> 8);
            bytes += isLittle ? low : high;
            bytes += isLittle ? high : low;
        }
        return random.bounded(5) == 0 ? bytes.chopped(1) : bytes;
    }
    default:
        for (int i = 0; i < length; ++i)
            bytes += parts[random.bounded(parts.size())];
        return bytes;
    }
}

} // namespace

/// Files that hold anything, opened in the editing control and saved again.
class TstArbitraryFiles final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameBytes()
    {
        const int count = qEnvironmentVariableIsSet("ZEPHIRA_TRUST") ? 2000 : 200;
        const QTemporaryDir folder;
        DiskFileStore files;
        FakeClock clock;
        RecoveryCopies recovery{folder.filePath(u"recovery"_s), files, clock};
        ScriptedPrompts prompts;
        CodeMax editor{{files, recovery, prompts}};
        QRandomGenerator random(2000);
        for (int i = 0; i < count; ++i) {
            const QByteArray bytes = i == 0 ? QByteArray() : arbitraryBytes(random);
            const QString path = putFile(folder.filePath(u"a.htm"_s), bytes);
            const QString copy = folder.filePath(u"b.htm"_s);
            QVERIFY(editor.OpenFile(path));
            QVERIFY2(editor.SaveFile(copy, false), bytes.toHex(' ').constData());
            QVERIFY2(contentOf(copy) == bytes, bytes.toHex(' ').constData());
            QVERIFY(editor.SaveFile(path, true));
            QVERIFY2(contentOf(path) == bytes, bytes.toHex(' ').constData());
        }
        qInfo("%d arbitrary files came back as they were", count);
    }
};

ZEPHIRA_TEST(TstArbitraryFiles)

} // namespace zephira

#include "tst_arbitraryfiles.moc"
