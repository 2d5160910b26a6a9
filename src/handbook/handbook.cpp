// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/handbook.h"

#include "handbook/helptable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView contentsMark = u"<!-- contents -->";
constexpr QStringView keysMark = u"<!-- keys -->";
/// What a word in a title counts for, among the words of a page, of which no more than this many count.
constexpr int titleWeight = 20;
constexpr int mostOccurrences = 9;

/// A page in the order of the contents.
struct PlacedPage {
    QString name;
    QString title;
    QStringView chapter;
};

/// What stands on every page around its content. %1 title, %2 chapter and its divider, %3 content, %4 previous and next.
constexpr QStringView frame = uR"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>%1</title>
<link rel="stylesheet" href="guide.css">
</head>
<body>
<header>
<p class="where"><a href="index.html">Zephira Handbook</a>%2</p>
<form id="searching" role="search" hidden>
<label for="sought">Search</label>
<input id="sought" type="search" autocomplete="off" spellcheck="false" aria-controls="found">
<p id="told" role="status"></p>
<ol id="found"></ol>
</form>
</header>
<main>
%3
</main>
<footer>
<nav aria-label="Pages">%4</nav>
</footer>
<script src="index.js"></script>
<script src="search.js"></script>
</body>
</html>
)";

Error broken(const QString &sentence)
{
    return {Error::Code::Failed, sentence};
}

QString link(const QString &page, const QString &text, QStringView relation = {})
{
    const QString rel = relation.isEmpty() ? QString() : u" rel=\"%1\""_s.arg(relation);
    return u"<a%1 href=\"%2\">%3</a>"_s.arg(rel, helpFile(page), text.toHtmlEscaped());
}

QString contentsList(const std::vector<PlacedPage> &pages)
{
    QString html;
    QStringView chapter;
    for (const PlacedPage &page : pages) {
        if (page.chapter != chapter) {
            html += (chapter.isEmpty() ? u""_s : u"</ul>\n"_s) + u"<h2>%1</h2>\n<ul>\n"_s.arg(page.chapter);
            chapter = page.chapter;
        }
        html += u"<li>%1</li>\n"_s.arg(link(page.name, page.title));
    }
    return u"<nav class=\"contents\" aria-label=\"Contents\">\n%1</ul>\n</nav>"_s.arg(html);
}

/// The content with the page's picture behind its first paragraph.
QString withPicture(QString content, const PlacedPage &page, const QHash<QString, QSize> &pictures)
{
    const QSize size = pictures.value(page.name);
    const qsizetype end = content.indexOf(u"</p>");
    if (size.isEmpty() || end < 0)
        return content;
    return content.insert(end + 4,
                          u"\n<p class=\"picture\"><img src=\"pictures/%1.png\" width=\"%2\" height=\"%3\" "
                          u"alt=\"Picture: %4\"></p>"_s.arg(page.name)
                              .arg(size.width())
                              .arg(size.height())
                              .arg(page.title.toHtmlEscaped()));
}

/// The script that gives the search its words: each with the pages that have it, by number, and what it counts for
/// there.
QString searchIndex(const std::vector<PlacedPage> &pages, const HandbookSource &source)
{
    QJsonArray titles;
    std::map<QString, std::map<int, int>> weights;
    for (int number = 0; number < static_cast<int>(pages.size()); ++number) {
        const PlacedPage &page = pages[static_cast<std::size_t>(number)];
        titles.append(QJsonArray{helpFile(page.name), page.title});
        const QStringList words =
            wordsOf(source.pages.at(page.name) + (page.name == u"keys" ? source.keys : QString()));
        for (const QString &word : words)
            weights[word][number] = std::min(weights[word][number] + 1, mostOccurrences);
        const QStringList titleWords = wordsOf(page.title);
        for (const QString &word : titleWords)
            weights[word][number] += titleWeight;
    }
    QJsonObject words;
    for (const auto &[word, places] : weights) {
        QJsonArray list;
        for (const auto &[number, weight] : places) {
            list.append(number);
            list.append(weight);
        }
        words.insert(word, list);
    }
    const QJsonObject index{{u"pages"_s, titles}, {u"words"_s, words}};
    return u"const handbookIndex = %1;\n"_s.arg(QString::fromUtf8(QJsonDocument(index).toJson(QJsonDocument::Compact)));
}

Result<std::vector<PlacedPage>> placedPages(const HandbookSource &source)
{
    std::vector<PlacedPage> pages;
    for (const HelpChapter &chapter : helpChapters()) {
        for (const HelpPage &page : chapter.pages) {
            const auto content = source.pages.find(page.name.toString());
            if (content == source.pages.end())
                return broken(u"the page %1 is missing"_s.arg(page.name));
            const QString title = pageTitle(content->second);
            if (title.isEmpty())
                return broken(u"the page %1 has no heading <h1>"_s.arg(page.name));
            pages.push_back({page.name.toString(), title, chapter.title});
        }
    }
    for (const auto &[name, content] : source.pages) {
        const bool isPlaced = std::ranges::find(pages, name, &PlacedPage::name) != pages.end();
        if (!isPlaced && name != contentsPage)
            return broken(u"the page %1 is in no chapter"_s.arg(name));
    }
    return pages;
}

QString framed(const QString &title, const QString &chapter, const QString &content, const QString &ways)
{
    return frame.toString().arg(title.toHtmlEscaped(), chapter, content.trimmed(), ways);
}

} // namespace

Result<std::vector<HandbookFile>> makeHandbook(const HandbookSource &source)
{
    const Result<std::vector<PlacedPage>> placed = placedPages(source);
    if (!placed)
        return placed.error();
    const std::vector<PlacedPage> &pages = placed.value();
    const auto contents = source.pages.find(contentsPage.toString());
    const auto keys = source.pages.find(u"keys"_s);
    if (contents == source.pages.end() || !contents->second.contains(contentsMark))
        return broken(u"the page %1 has no mark %2"_s.arg(contentsPage, contentsMark));
    if (!keys->second.contains(keysMark))
        return broken(u"the page keys has no mark %1"_s.arg(keysMark));

    std::vector<HandbookFile> files;
    QString contentsText = contents->second;
    contentsText.replace(contentsMark.toString(), contentsList(pages));
    files.push_back({helpFile(contentsPage),
                     framed(pageTitle(contents->second), {}, contentsText,
                            link(pages.front().name, pages.front().title, u"next"))});
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const PlacedPage &page = pages[i];
        QString content = withPicture(source.pages.at(page.name), page, source.pictures);
        content.replace(keysMark.toString(), source.keys);
        QStringList ways{i > 0 ? link(pages[i - 1].name, pages[i - 1].title, u"prev")
                               : link(contentsPage.toString(), u"Contents"_s, u"prev")};
        if (i + 1 < pages.size())
            ways.append(link(pages[i + 1].name, pages[i + 1].title, u"next"));
        files.push_back({helpFile(page.name),
                         framed(page.title + u" - Zephira Handbook"_s,
                                u" \u203a "_s + page.chapter.toString().toHtmlEscaped(), content, ways.join(u"\n"_s))});
    }
    files.push_back({u"index.js"_s, searchIndex(pages, source)});
    return files;
}

QString pageTitle(const QString &content)
{
    static const QRegularExpression heading(u"<h1[^>]*>(.*?)</h1>"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tags(u"<[^>]*>"_s);
    return heading.match(content).captured(1).remove(tags).simplified();
}

QStringList wordsOf(const QString &content)
{
    static const QRegularExpression markup(u"<!--.*?-->|<[^>]*>"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression word(u"[\\p{L}\\p{N}]{2,}"_s, QRegularExpression::UseUnicodePropertiesOption);
    QString text = content;
    text.replace(markup, u" "_s);
    text.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&quot;"_s, u"\""_s);
    text.replace(u"&nbsp;"_s, u" "_s).replace(u"&amp;"_s, u"&"_s);
    QStringList words;
    for (const QRegularExpressionMatch &match : word.globalMatch(text))
        words.append(match.captured().toLower());
    return words;
}

QSize pictureSize(QByteArrayView png)
{
    // The signature is followed by the header chunk: its length, its name, width and height.
    constexpr std::array<char, 8> signature{'\x89', 'P', 'N', 'G', '\r', '\n', '\x1a', '\n'};
    constexpr qsizetype widthAt = 16;
    constexpr qsizetype heightAt = 20;
    if (png.size() < heightAt + 4 || !png.startsWith(QByteArrayView(signature.data(), signature.size())))
        return {};
    return {static_cast<int>(qFromBigEndian<quint32>(png.data() + widthAt)),
            static_cast<int>(qFromBigEndian<quint32>(png.data() + heightAt))};
}

} // namespace zephira
