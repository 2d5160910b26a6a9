// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary files of the side pane's lists: each line is read once, trees are connected, and an entry that is added to
// a custom tab reads back unchanged.
#include "files/textfile.h"
#include "files/textlines.h"
#include "fuzz/fuzztarget.h"
#include "panes/customtabfile.h"
#include "panes/sottree.h"
#include "tags/tagfile.h"

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void checkLines(const QString &text, const QStringList &lines)
{
    qsizetype length = 0;
    for (const QString &line : lines) {
        check(!line.contains(u'\r') && !line.contains(u'\n'));
        length += line.size();
    }
    check(length + text.count(u'\r') + text.count(u'\n') == text.size());
}

void checkTree(const QStringList &lines)
{
    const SotTree tree = parseSotTree(lines);
    const auto count = static_cast<qsizetype>(tree.nodes.size());
    check(tree.faultyLine == 0 ? count == lines.size() : count == tree.faultyLine - 1);
    for (qsizetype i = 0; i < count; ++i) {
        const SotTree::Node &node = tree.nodes[static_cast<std::size_t>(i)];
        check(node.parent < i && lines[i].endsWith(node.caption) && !node.caption.startsWith(u'\t'));
        check((node.parent < 0) == !lines[i].startsWith(u'\t'));
    }
}

void checkCustomTab(const QString &text, const QStringList &lines)
{
    const CustomTabFile tab = parseCustomTab(lines);
    check(tab.entries.size() <= static_cast<std::size_t>(lines.size()));
    const CustomTabFile::Entry entry{u"title, too"_s, u"<b>"_s};
    const CustomTabFile longer = parseCustomTab(textLines(text + customTabEntry(entry.title, entry.code)));
    // A title without code takes the next title line as its code; the code after that is then an entry of its own.
    check(longer.entries.back() == entry || longer.entries.back() == CustomTabFile::Entry{entry.code, entry.code});
}

} // namespace

FUZZ_TARGET(lists)
{
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const QString text = QString::fromUtf8(decodeText(bytes).utf8);
    const QStringList lines = textLines(text);
    checkLines(text, lines);
    checkTree(lines);
    checkCustomTab(text, lines);
    check(tagCaptions(lines).join(QString()).remove(u' ') == lines.join(QString()).remove(u' '));
    return 0;
}
