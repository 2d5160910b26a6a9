// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView keywords = uR"(
AddHandler AddressOf Alias Any AppActivate As Async Attribute Await Base Beep Begin Binary Boolean ByRef Byte ByVal Call
Case Catch CBool CByte CChar CCur CDate CDbl CDec ChDir ChDrive CInt Class CLng CLngLng CLngPtr Close CObj Collection
Compare Const Continue CSByte CShort CSng CStr CType CUInt CULng CUShort Currency CVar CVDate CVErr Date Decimal Declare
Default DefBool DefByte DefCur DefDate DefDbl DefDec DefInt DefLng DefObj DefSng DefStr DefVar Delegate DeleteSetting Dim
DirectCast Double Each Else ElseIf Empty End EndIf Erase Error Event Exit Explicit False FileCopy Finally Friend Get
GetType GetXMLNamespace Global GoSub GoTo Handles If Implements Imports In Inherits Input Integer Interface Iterator Kill
Len Let Lib Line Load Lock Long LongLong LongPtr LSet Me Mid MkDir Module MustInherit MustOverride MyBase MyClass Name
NameOf Namespace Narrowing New Nothing NotInheritable NotOverridable Null Object Of On Open Operator Option Optional Out
Output Overloads Overridable Overrides ParamArray Partial Preserve Print Private Protected PtrSafe Public Put RaiseEvent
Random Randomize Read ReadOnly ReDim RemoveHandler Reset Resume Return RmDir RSet SaveSetting SByte Seek SendKeys Set
SetAttr Shadows Shared Short Single Spc Static Step Stop String Structure SyncLock Tab Then Throw Time To True Try TryCast
TypeOf UInteger ULong Unload Unlock Until UShort Using Variant Wait When Widening Width WithEvents Write WriteOnly Yield
vbArray vbAbort vbAbortRetryIgnore vbApplicationModal vbBinaryCompare vbBlack vbBlue vbBoolean vbByte vbCancel vbCr
vbCritical vbCrLf vbCurrency vbCyan vbDataObject vbDate vbDecimal vbDefaultButton1 vbDefaultButton2 vbDefaultButton3
vbDouble vbEmpty vbError vbExclamation vbFalse vbFirstFourDays vbFormFeed vbFriday vbGeneralDate vbGreen vbIgnore
vbInformation vbInteger vbLf vbLong vbLongDate vbLongTime vbMagenta vbMonday vbNewLine vbNo vbNull vbNullChar vbNullString
vbObject vbObjectError vbOK vbOKCancel vbOKOnly vbQuestion vbRed vbRetry vbRetryCancel vbSaturday vbShortDate vbShortTime
vbSingle vbString vbSunday vbSystemModal vbTab vbTextCompare vbThursday vbTrue vbTuesday vbUseSystem vbVariant vbVerticalTab
vbWednesday vbWhite vbYellow vbYes vbYesNo vbYesNoCancel
Abs Array Asc AscB AscW Atn Choose Chr ChrB ChrW Command Cos CreateObject CurDir DateAdd DateDiff DatePart DateSerial
DateValue Day DDB Dir DoEvents Environ EOF Escape Eval Execute ExecuteGlobal Exp FileAttr FileDateTime FileLen Filter Fix
Format FormatCurrency FormatDateTime FormatNumber FormatPercent FreeFile FV GetAllSettings GetAttr GetLocale GetObject
GetRef GetSetting Hex Hour IIf InputBox InStr InStrB InStrRev Int IPmt IRR IsArray IsDate IsEmpty IsError IsMissing IsNull
IsNumeric IsObject Join LBound LCase Left LeftB LenB LoadPicture Loc LOF Log LTrim MidB Minute MIRR Month MonthName MsgBox
Now NPer NPV Oct Partition Pmt PPmt PV QBColor Rate Replace RGB Right RightB Rnd Round RTrim ScriptEngine
ScriptEngineBuildVersion ScriptEngineMajorVersion ScriptEngineMinorVersion Second SetLocale Sgn Shell Sin SLN Space Split
Sqr Str StrComp StrConv StrReverse Switch SYD Tan Timer TimeSerial TimeValue Trim TypeName UBound UCase Unescape Val VarPtr
VarType Weekday WeekdayName Year Err Debug
#Const #If #ElseIf #Else #Region #ExternalSource
)";

/// Multi-word entries, so that a word inside them isn't taken for the beginning or end of a block.
constexpr QStringView phrases = u"#End If|#End Region|End If|Exit Sub|Exit Function|Exit Property|Exit For|"
                                "Exit Do|Exit While|Exit Select|Exit Try|Continue For|Continue Do|Continue While|"
                                "Declare Sub|Declare Function|Declare PtrSafe Sub|Declare PtrSafe Function|"
                                "Resume Next|For Input|For Output|For Append|For Binary|For Random|End Set|End Get";

constexpr QStringView blockBeginnings =
    u"Sub|Function|Class|Property|Property Get|Property Let|Property Set|For|For Each|"
    "Do|Do While|Do Until|While|Select|Select Case|With|Type|Enum";

constexpr QStringView blockEnds = u"End Sub|End Function|End Class|End Property|Next|Loop|Loop While|Loop Until|Wend|"
                                  "End While|End Select|End With|End Type|End Enum";

constexpr QStringView operators = uR"(
+ - * / \ = < > & ^ ( ) : And AndAlso Eqv Imp Is IsNot Like Mod Not Or OrElse Xor
)";

constexpr QStringView pageObjects = uR"(
Application ASPError ObjectContext Request Response Server Session WScript
)";

} // namespace

LanguageDefinition basicDefinition()
{
    CodeMaxLanguage basic;
    basic.CaseSensitive = false;
    basic.Keywords = wordList(keywords) + u'\n' + entryList(phrases);
    basic.Operators = wordList(operators);
    basic.SingleLineComments = wordList(u"' Rem");
    basic.ScopeKeywords1 = entryList(blockBeginnings);
    basic.ScopeKeywords2 = entryList(blockEnds);
    basic.StringDelims = u"\""_s;
    return {basic, Dialect::AmpersandNumbers | Dialect::DateLiterals | Dialect::NumberSuffixSigns};
}

LanguageDefinition vbScriptDefinition()
{
    LanguageDefinition script = basicDefinition();
    script.language.Keywords += u'\n' + wordList(pageObjects);
    // The sign that hides scripts from browsers that don't support them.
    script.language.SingleLineComments += u"\n<!--"_s;
    return script;
}

} // namespace zephira
