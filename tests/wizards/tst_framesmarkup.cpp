// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/framesmarkup.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The frameset, written line by line.
QString reference(const FramesFields &fields)
{
    QStringList lines{u"<!--- Frames --->"_s,
                      u"<frameset  rows=\"%1%,*\" cols=\"%2%,*\">"_s.arg(fields.rowPercent).arg(fields.colPercent)};
    for (const FrameFields &frame : fields.frames) {
        QString line = u"    <frame name=\""_s;
        line += frame.name;
        line += u"\" src=\"";
        line += frame.source;
        line += u"\" marginwidth=\"";
        line += frame.marginWidth;
        line += u"\" marginheight=\"";
        line += frame.marginHeight;
        line += u"\" scrolling=\"";
        line += frame.scrolling;
        line += u"\"";
        if (frame.border)
            line += u" frameborder=\"1\"";
        if (frame.fixedSize)
            line += u" noresize";
        lines.append(line + u">"_s);
    }
    lines << u"</frameset>"_s << u"<!--- Frames Ends. --->"_s << QString();
    return lines.join(u"\r\n"_s);
}

} // namespace

class TstFramesMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void empty()
    {
        FramesFields fields{51, 51, {}};
        for (FrameFields &frame : fields.frames)
            frame.scrolling = u"Auto"_s;
        const QString line =
            u"    <frame name=\"\" src=\"\" marginwidth=\"\" marginheight=\"\" scrolling=\"Auto\">\r\n"_s;
        QCOMPARE(framesMarkup(fields),
                 u"<!--- Frames --->\r\n"
                 "<frameset  rows=\"51%,*\" cols=\"51%,*\">\r\n"_s
                     + line.repeated(4)
                     + u"</frameset>\r\n"
                       "<!--- Frames Ends. --->\r\n"_s);
    }

    void everything()
    {
        FramesFields fields{-3, 100, {}};
        fields.frames[1] = {u"a\"b"_s, u"ü&<.htm"_s, u"x"_s, u" "_s, u"No"_s, true, true};
        QVERIFY(
            framesMarkup(fields).startsWith(u"<!--- Frames --->\r\n<frameset  rows=\"-3%,*\" cols=\"100%,*\">\r\n"_s));
        QCOMPARE(framesMarkup(fields).split(u"\r\n"_s).at(3),
                 u"    <frame name=\"a\"b\" src=\"ü&<.htm\" marginwidth=\"x\" marginheight=\" \" scrolling=\"No\" "
                 "frameborder=\"1\" noresize>"_s);
    }

    void likeThePlainlyWrittenFrames()
    {
        const QStringList values{{}, u"a"_s, u"\""_s, u"<&>"_s, u"ü😀"_s, u"\r\n"_s, u"%1"_s, u" "_s};
        QRandomGenerator random(5);
        const auto any = [&] { return values[random.bounded(values.size())]; };
        for (int round = 0; round < 2000; ++round) {
            FramesFields fields{
                static_cast<qint16>(random.bounded(-200, 200)), static_cast<qint16>(random.bounded(-200, 200)), {}};
            for (FrameFields &frame : fields.frames)
                frame = {any(), any(), any(), any(), any(), random.bounded(2) == 0, random.bounded(2) == 0};
            QCOMPARE(framesMarkup(fields), reference(fields));
        }
    }
};

ZEPHIRA_TEST(TstFramesMarkup)

#include "tst_framesmarkup.moc"
