// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/framesmarkup.h"

#include "wizards/attribute.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString frameLine(const FrameFields &frame)
{
    return u"    <frame"_s + attribute(u"name"_s, frame.name) + attribute(u"src"_s, frame.source)
        + attribute(u"marginwidth"_s, frame.marginWidth) + attribute(u"marginheight"_s, frame.marginHeight)
        + attribute(u"scrolling"_s, frame.scrolling) + (frame.border ? attribute(u"frameborder"_s, u"1"_s) : QString())
        + (frame.fixedSize ? u" noresize"_s : QString()) + u">\r\n"_s;
}

/// The percentage of one side; the other gets the rest.
QString share(qint16 percent)
{
    return QString::number(percent) + u"%,*"_s;
}

} // namespace

QString framesMarkup(const FramesFields &fields)
{
    QString text = u"<!--- Frames --->\r\n"
                   "<frameset "_s
        + attribute(u"rows"_s, share(fields.rowPercent)) + attribute(u"cols"_s, share(fields.colPercent)) + u">\r\n"_s;
    for (const FrameFields &frame : fields.frames)
        text += frameLine(frame);
    return text
        + u"</frameset>\r\n"
          "<!--- Frames Ends. --->\r\n"_s;
}

} // namespace zephira
