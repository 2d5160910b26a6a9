// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts before the caret: what is to be completed lies within them, at their end.
#include "assist/abbreviations/abbreviationplace.h"
#include "completion/completionplace.h"
#include "completion/documentnames.h"
#include "fuzz/fuzztarget.h"

#include <QStringList>

using namespace zephira;

namespace {

void checkNames(const QByteArray &text, const DocumentNames &names)
{
    for (const QSet<QByteArray> &each : {names.ids, names.classes, names.tags, names.attributes}) {
        for (const QByteArray &name : each)
            check(!name.isEmpty() && name.size() <= text.size());
    }
    for (const QByteArray &sheet : names.sheets)
        check(sheet.size() <= text.size());
}

} // namespace

FUZZ_TARGET(completionplace)
{
    const QByteArray text = zephira::fuzz::inputBytes(data, size);
    for (const PlaceLanguage language :
         {PlaceLanguage::Html, PlaceLanguage::Xml, PlaceLanguage::StyleSheet, PlaceLanguage::Other}) {
        for (const bool isCut : {false, true}) {
            const CompletionPlace place = completionPlace(text, language, isCut);
            check(place.start >= 0 && place.start <= text.size());
        }
        if (language == PlaceLanguage::Html || language == PlaceLanguage::Xml)
            checkNames(text, markupNames(text, language));
    }
    checkNames(text, styleNames(text));
    const QSet<QByteArray> words = wordsOf(text, 5);
    check(words.size() <= 5);
    for (const QByteArray &word : words)
        check(text.contains(word));
    OpenElements reader;
    abbreviationSyntax(reader, {text, {}}, text.size());
    const QStringList lines = QString::fromUtf8(text).split(u'\n');
    const QStringList without = withoutSharedIndent(lines);
    check(without.size() == lines.size() && withoutSharedIndent(without) == without);
    for (qsizetype i = 0; i < lines.size(); ++i)
        check(lines[i].endsWith(without[i]));
    return 0;
}
