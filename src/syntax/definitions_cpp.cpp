// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView keywords = uR"(
alignas alignof asm auto bool break case catch char char8_t char16_t char32_t class co_await co_return co_yield concept
const const_cast consteval constexpr constinit continue decltype default delete do double dynamic_cast else enum explicit
export extern false final float for friend goto if import inline int long module mutable namespace new noexcept nullptr
operator override private protected public register reinterpret_cast requires restrict return short signed sizeof static
static_assert static_cast struct switch template this thread_local throw true try typedef typeid typename typeof union
unsigned using virtual void volatile wchar_t while
_Alignas _Alignof _Atomic _BitInt _Bool _Complex _Decimal32 _Decimal64 _Decimal128 _Generic _Imaginary _Noreturn _Pragma
_Static_assert _Thread_local __asm__ __attribute__ __cdecl __declspec __fastcall __func__ __inline __int8 __int16 __int32
__int64 __restrict __stdcall __volatile__
#assert #define #elif #elifdef #elifndef #else #embed #endif #error #ident #if #ifdef #ifndef #import #include
#include_next #line #pragma #undef #using #warning defined __has_include __has_cpp_attribute __VA_ARGS__ __VA_OPT__
__FILE__ __LINE__ __DATE__ __TIME__ __cplusplus
)";

/// Commonly used types of the C++ and C standard libraries.
constexpr QStringView types = uR"(
FILE NULL clock_t errno_t fpos_t int8_t int16_t int32_t int64_t int_fast8_t int_fast16_t int_fast32_t int_fast64_t
int_least8_t int_least16_t int_least32_t int_least64_t intmax_t intptr_t max_align_t nullptr_t off_t pid_t ptrdiff_t
sig_atomic_t std::size_t ssize_t time_t uint8_t uint16_t uint32_t uint64_t uint_fast8_t uint_fast16_t uint_fast32_t
uint_fast64_t uint_least8_t uint_least16_t uint_least32_t uint_least64_t uintmax_t uintptr_t va_list wint_t
any array atomic basic_string bitset byte chrono complex condition_variable deque error_code exception forward_list
fstream function future ifstream initializer_list iostream istream istringstream jthread list lock_guard map monostate
multimap multiset mutex ofstream optional ostream ostringstream pair priority_queue promise queue regex runtime_error
logic_error scoped_lock set shared_lock shared_mutex shared_ptr source_location span stack std stop_token string
string_view stringstream strong_ordering thread tuple unique_lock unique_ptr unordered_map unordered_multimap
unordered_multiset unordered_set u8string u16string u32string variant vector weak_ptr wstring wstring_view
)";

constexpr QStringView operators = uR"(
+ - * / % = ! < > & | ^ ~ ? : ( ) [ ]
and and_eq bitand bitor compl not not_eq or or_eq xor xor_eq
)";

} // namespace

LanguageDefinition cppDefinition()
{
    CodeMaxLanguage cpp;
    cpp.CaseSensitive = true;
    cpp.Keywords = wordList(keywords) + u'\n' + wordList(types);
    cpp.Operators = wordList(operators);
    cpp.SingleLineComments = u"//"_s;
    cpp.MultiLineComments1 = u"/*"_s;
    cpp.MultiLineComments2 = u"*/"_s;
    cpp.ScopeKeywords1 = u"{"_s;
    cpp.ScopeKeywords2 = u"}"_s;
    cpp.StringDelims = wordList(u"\" '");
    cpp.EscapeChar = u"\\"_s;
    cpp.TerminatorChar = u";"_s;
    return {cpp, Dialect::Preprocessor | Dialect::RawStrings | Dialect::DigitQuotes};
}

} // namespace zephira
