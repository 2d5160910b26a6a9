// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/describestyles.h"

#include "syntax/languageregistry.h"
#include "syntax/syntaxengine.h"

using namespace Qt::StringLiterals;

namespace zephira {

QByteArray describeStyles(QByteArrayView text, const SyntaxEngine &engine)
{
    std::vector<unsigned char> styles(static_cast<std::size_t>(text.size()));
    engine.styleRange(text, 0, styles);
    QByteArray runs;
    for (std::size_t begin = 0; begin < styles.size();) {
        std::size_t end = begin;
        while (end < styles.size() && styles[end] == styles[begin])
            ++end;
        runs += QByteArray::number(static_cast<qulonglong>(begin)) + ' '
            + QByteArray::number(static_cast<qulonglong>(end - begin)) + ' ' + QByteArray::number(styles[begin]) + '\n';
        begin = end;
    }
    return runs;
}

QByteArray describeStyles(QByteArrayView text, const QString &language)
{
    LanguageRegistry registry;
    registry.RegisterLanguage(u"Perl"_s, perlLanguage());
    const auto engine = registry.engine(language);
    return engine ? describeStyles(text, *engine) : QByteArray();
}

} // namespace zephira
