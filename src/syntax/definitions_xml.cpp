// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

LanguageDefinition xmlDefinition()
{
    // Authors choose the names of elements and attributes, so the lists stay empty and every name is known.
    CodeMaxLanguage xml;
    xml.CaseSensitive = true;
    xml.Style = 1;
    xml.Operators = wordList(u"< > / =");
    xml.MultiLineComments1 = u"<!--"_s;
    xml.MultiLineComments2 = u"-->"_s;
    xml.StringDelims = wordList(u"\" '");
    xml.TagEntities = wordList(u"amp lt gt quot apos");
    return {xml};
}

} // namespace zephira
