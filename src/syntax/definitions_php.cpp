// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView keywords = uR"(
abstract array as bool break callable case catch class clone const continue declare default die do echo else elseif empty
enddeclare endfor endforeach endif endswitch endwhile enum eval exit extends false final finally float fn for foreach from
function global goto if implements include include_once int interface isset iterable list match mixed namespace never new
null object parent print private protected public readonly require require_once return self static string switch throw
trait true try unset use var void while yield
__CLASS__ __DIR__ __FILE__ __FUNCTION__ __LINE__ __METHOD__ __NAMESPACE__ __TRAIT__ __halt_compiler
$
)";

constexpr QStringView operators = u"+ - * / % = ! < > & | ^ ~ ? : . @ ( ) [ ] #[ and instanceof insteadof or xor";

} // namespace

LanguageDefinition phpDefinition()
{
    CodeMaxLanguage php;
    php.CaseSensitive = false;
    php.Keywords = wordList(keywords);
    php.Operators = wordList(operators);
    php.SingleLineComments = wordList(u"// #");
    php.MultiLineComments1 = u"/*"_s;
    php.MultiLineComments2 = u"*/"_s;
    php.ScopeKeywords1 = u"{"_s;
    php.ScopeKeywords2 = u"}"_s;
    php.StringDelims = wordList(u"\" ' `");
    php.EscapeChar = u"\\"_s;
    php.TerminatorChar = u";"_s;
    return {php, Dialect::LongStrings | Dialect::HereDocuments | Dialect::PhpClosing};
}

} // namespace zephira
