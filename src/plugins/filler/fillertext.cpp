// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/filler/fillertext.h"

#include <QStringBuilder>

#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype lineWidth = 80;

constexpr QStringView paragraphs[] = {
    u"The first train of the morning leaves before the bakery opens. Whoever takes it knows the three stops by heart: "
    u"the mill, the long bridge, the harbour with its yellow cranes. Nobody talks much. The windows show the river, "
    u"then gardens, then the river again, and by the time the sun is up the town lies far behind.",
    u"A good kettle has a handle that stays cool and a lid that doesn't rattle. Ours has neither. We keep it all the "
    u"same, because it has boiled the water for every guest of this house, and because it whistles two notes at once, "
    u"which no kettle from a shop will ever learn.",
    u"On the map the path is a dotted line, and in the field it isn't much more. It follows a hedge, loses itself "
    u"between two gates and turns up again behind the barn. Take a stick, some bread and an hour more than you think "
    u"you need.",
    u"The library moved three times in ten years. Each time the same forty boxes were carried down one staircase and up "
    u"another, and each time one box was found that nobody remembered. It held letters, tied with a blue ribbon, from "
    u"a reader who always returned her books a day early.",
    u"Rain again. It runs down the slates, into the gutter, over the edge where the gutter ends, and falls on the lid "
    u"of the barrel with a sound like slow applause. The garden doesn't mind. By evening the beans will have climbed "
    u"another hand's breadth up their poles.",
};

/// Breaks the text between words into lines of at most that many characters.
QString wrapped(QStringView text, qsizetype width)
{
    QString lines;
    while (text.size() > width) {
        const qsizetype end = text.lastIndexOf(u' ', width);
        lines += text.first(end) % u"\r\n";
        text = text.sliced(end + 1);
    }
    return lines % text;
}

} // namespace

int fillerParagraphs()
{
    return static_cast<int>(std::size(paragraphs));
}

QString fillerParagraph(int number)
{
    return wrapped(QString(u"<p>" % paragraphs[number % fillerParagraphs()] % u"</p>"), lineWidth) % u"\r\n";
}

} // namespace zephira
