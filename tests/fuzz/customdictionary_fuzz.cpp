// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary files of the user's words: each line is a word or faulty, a word is added without changing what is there,
// and each word can be found in a text and shown in its sentence.
#include "fuzz/fuzztarget.h"
#include "tools/spelling/customdictionary.h"
#include "tools/spelling/plainwords.h"
#include "tools/spelling/words.h"

#include <QSet>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void checkAdding(const QByteArray &bytes, const CustomDictionary &dictionary)
{
    const QByteArray longer = withCustomWord(bytes, u"zephira"_s);
    check(longer.startsWith(bytes));
    const CustomDictionary read = readCustomDictionary(longer);
    check(read.words.contains(u"zephira"_s));
    check(read.words.mid(0, dictionary.words.size()) == dictionary.words);
    check(read.faultyLines == dictionary.faultyLines && read.firstFaultyLine == dictionary.firstFaultyLine);
    check(withCustomWord(longer, u"zephira"_s) == longer);
}

void checkWords(const QString &text)
{
    QStringList words;
    for (TextPlace word = nextWord(text, 0); word.length > 0; word = nextWord(text, word.end())) {
        words.append(text.sliced(word.start, word.length));
        const Excerpt excerpt = sentenceAround(text, word);
        const QString shown = excerpt.text.sliced(excerpt.word.start, excerpt.word.length);
        check(shown == words.back() || shown.contains(u'…'));
    }
    check(words == plainWords(text));
}

} // namespace

FUZZ_TARGET(customdictionary)
{
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const CustomDictionary dictionary = readCustomDictionary(bytes);
    check((dictionary.faultyLines > 0) == (dictionary.firstFaultyLine > 0));
    check(QSet<QString>(dictionary.words.begin(), dictionary.words.end()).size() == dictionary.words.size());
    for (const QString &word : dictionary.words)
        check(isCustomWord(word));
    checkAdding(bytes, dictionary);
    checkWords(QString::fromUtf8(bytes));
    return 0;
}
