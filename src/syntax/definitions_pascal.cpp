// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView keywords = uR"(
absolute abstract array as assembler automated break cdecl class const constructor contains continue default delayed
deprecated destructor dispid dispinterface do downto dynamic else except exit experimental export exports external far
file final finalization finally for forward function generic goto halt helper if implementation implements in index
inherited initialization inline interface label library local message name near nil nodefault object of on operator out
overload override package packed pascal platform private procedure program property protected public published raise read
readonly record reference register reintroduce requires resident resourcestring result safecall sealed self set specialize
static stdcall stored strict string then threadvar to type unit unsafe uses var varargs virtual while winapi with write
writeonly true false
AnsiChar AnsiString Boolean Byte ByteBool Cardinal Char Comp Currency Double Extended FixedInt Int64 Integer LongBool
LongInt LongWord NativeInt NativeUInt OleVariant PAnsiChar PChar PWideChar Pointer QWord RawByteString Real Real48
ShortInt ShortString Single SmallInt Text TextFile TObject UInt64 UnicodeString UTF8String Variant WideChar WideString
Word WordBool
)";

constexpr QStringView operators = uR"(
+ - * / = < > @ ^ : ( ) [ ] and div is mod not or shl shr xor
)";

} // namespace

LanguageDefinition pascalDefinition()
{
    CodeMaxLanguage pascal;
    pascal.CaseSensitive = false;
    pascal.Keywords = wordList(keywords);
    pascal.Operators = wordList(operators);
    pascal.SingleLineComments = u"//"_s;
    pascal.MultiLineComments1 = wordList(u"{ (*");
    pascal.MultiLineComments2 = wordList(u"} *)");
    // Records and classes end with "end" too, but "class" may occur without one. Their "end" can't make the depth
    // negative.
    pascal.ScopeKeywords1 = wordList(u"begin case try asm repeat");
    pascal.ScopeKeywords2 = wordList(u"end until");
    pascal.StringDelims = u"'"_s;
    pascal.TerminatorChar = u";"_s;
    return {pascal, Dialect::DollarNumbers};
}

} // namespace zephira
