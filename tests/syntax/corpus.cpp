// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/corpus.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QByteArrayView pieces[] = {"\n",
                                     "\r\n",
                                     "\r",
                                     "\n",
                                     "\r\n",
                                     " ",
                                     " ",
                                     "\t",
                                     "word",
                                     "x1",
                                     "12",
                                     "0x1F",
                                     "1.5e-3",
                                     "&amp;",
                                     "&#160;",
                                     "&",
                                     "<",
                                     ">",
                                     "</",
                                     "/>",
                                     "=",
                                     "\"",
                                     "'",
                                     "`",
                                     "\\",
                                     "/",
                                     "//",
                                     "/*",
                                     "*/",
                                     "#",
                                     "# ",
                                     "(*",
                                     "*)",
                                     "{",
                                     "}",
                                     "${",
                                     ";",
                                     ",",
                                     ".",
                                     "(",
                                     ")",
                                     "[",
                                     "]",
                                     "<p ",
                                     "<a href=",
                                     "<b>",
                                     "</b>",
                                     "<div class=\"",
                                     "<script>",
                                     "<script type=\"text/vbscript\">",
                                     "<script language=",
                                     "</script>",
                                     "<style>",
                                     "</style>",
                                     "<!--",
                                     "-->",
                                     "<!---",
                                     "<!--#include ",
                                     "<!DOCTYPE ",
                                     "<![",
                                     "<![CDATA[",
                                     "]]>",
                                     "<?xml ",
                                     "?>",
                                     "<?php ",
                                     "<?=",
                                     "<? ",
                                     "<%",
                                     "<%=",
                                     "<%--",
                                     "--%>",
                                     "<%@ language=jscript ",
                                     "%>",
                                     "@media ",
                                     "color:",
                                     "url(",
                                     "!important",
                                     "if",
                                     "End Sub",
                                     "Sub ",
                                     "Rem ",
                                     "begin",
                                     "end",
                                     "die ",
                                     "$",
                                     "$x",
                                     "#include ",
                                     "<<<EOT",
                                     "EOT",
                                     "R\"(",
                                     ")\"",
                                     "R\"x(",
                                     ")x\"",
                                     "\"\"\"",
                                     "return /a",
                                     "/g",
                                     "é",
                                     "ü",
                                     "€",
                                     "日本",
                                     "𝄞",
                                     "%",
                                     "?",
                                     "!",
                                     "-",
                                     "--",
                                     "data-x=",
                                     "onclick='",
                                     "<x-ü",
                                     "#1/2/2000#",
                                     "&HFF",
                                     "$FF",
                                     "#13"};

template<typename T, std::size_t N>
const T &oneOf(std::mt19937 &dice, const T (&all)[N])
{
    return all[dice() % N];
}

} // namespace

QStringList corpusLanguages()
{
    return {u"HTML"_s, u"XML"_s, u"C/C++"_s, u"Java"_s, u"Basic"_s, u"Pascal"_s, u"Perl"_s};
}

QByteArray corpusText(std::mt19937 &dice, int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += oneOf(dice, pieces);
    return text;
}

QByteArray corpusBytes(std::mt19937 &dice, int size)
{
    constexpr char signs[] = {'<', '>', '%',  '?',  '!',  '-', '"',  '\'', '&',
                              '/', '*', '\n', '\r', '\0', '`', '\\', '#',  '$'};
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes += dice() % 3 == 0 ? oneOf(dice, signs) : static_cast<char>(dice());
    return bytes;
}

std::vector<qsizetype> lineStartsOf(const QByteArray &text)
{
    std::vector<qsizetype> starts{0};
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool lineEnd = text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'));
        if (lineEnd && i + 1 < text.size())
            starts.push_back(i + 1);
    }
    return starts;
}

} // namespace zephira
