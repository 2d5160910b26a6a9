// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView javaKeywords = uR"(
abstract assert boolean break byte case catch char class const continue default do double else enum exports extends false
final finally float for goto if implements import instanceof int interface long module native new non-sealed null opens
package permits private protected provides public record requires return sealed short static strictfp super switch
synchronized this throw throws transient transitive true try uses var void volatile when while with yield
Boolean Byte Character Class Double Exception Float Integer Iterable Long Math Number Object Override Runnable
RuntimeException Short String StringBuffer StringBuilder System Thread Throwable Void
@Deprecated @FunctionalInterface @Override @SafeVarargs @SuppressWarnings @interface
)";

constexpr QStringView scriptKeywords = uR"(
arguments as async await break case catch class const constructor continue debugger default delete do else export extends
false finally for from function get if import in instanceof let new null of return set static super switch this throw true
try typeof undefined var void while with yield
Array ArrayBuffer BigInt Boolean Date Error Function Infinity Intl JSON Map Math NaN Number Object Promise Proxy Reflect
RegExp Set String Symbol TypeError WeakMap WeakSet
decodeURI decodeURIComponent encodeURI encodeURIComponent escape eval isFinite isNaN parseFloat parseInt unescape
)";

/// Global objects and functions provided by browsers and servers.
constexpr QStringView hostObjects = uR"(
alert clearInterval clearTimeout confirm console document event fetch history localStorage location navigator prompt
requestAnimationFrame screen sessionStorage setInterval setTimeout window
ActiveXObject Application Enumerator Request Response Server Session VBArray
)";

/// Words reserved in older scripts or used by typed dialects, in addition to the script keywords.
constexpr QStringView reservedWords = uR"(
abstract any boolean byte char declare double enum final float goto implements int interface keyof long namespace native
never number package private protected public readonly short string synchronized throws transient type unknown volatile
)";

constexpr QStringView operators = u"+ - * / % = ! < > & | ^ ~ ? : ( ) [ ]";

CodeMaxLanguage commonFields()
{
    CodeMaxLanguage language;
    language.CaseSensitive = true;
    language.Operators = wordList(operators);
    language.SingleLineComments = u"//"_s;
    language.MultiLineComments1 = u"/*"_s;
    language.MultiLineComments2 = u"*/"_s;
    language.ScopeKeywords1 = u"{"_s;
    language.ScopeKeywords2 = u"}"_s;
    language.StringDelims = wordList(u"\" '");
    language.EscapeChar = u"\\"_s;
    language.TerminatorChar = u";"_s;
    return language;
}

} // namespace

/// One language for both Java and scripts. Style sheets and SQL are shown with it as well, so it leaves out whatever
/// would garble them, such as regular expressions, because their slashes occur in paths there.
LanguageDefinition javaDefinition()
{
    CodeMaxLanguage java = commonFields();
    java.Keywords = wordList(javaKeywords) + u'\n' + wordList(scriptKeywords);
    return {java, Dialect::DollarInWords | Dialect::Templates | Dialect::TextBlocks};
}

LanguageDefinition javaScriptDefinition()
{
    CodeMaxLanguage script = commonFields();
    script.Keywords = wordList(scriptKeywords) + u'\n' + wordList(hostObjects) + u'\n' + wordList(reservedWords);
    // The sign that hides scripts from browsers that don't support them.
    script.SingleLineComments += u"\n<!--"_s;
    return {script, Dialect::DollarInWords | Dialect::Templates | Dialect::RegularExpressions};
}

} // namespace zephira
