// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The entries in their given order. The space in "die " and the spelling of "remdir" are intended.
constexpr QStringView keywords =
    u"abs|if|accept|alarm|atan2|bind|binmode|bless|caller|chdir|chmod|chomp|chop|chown|chr|chroot|close|closedir|connect|"
    "cos|crypt|dbmclose|dbmopen|defined|delete|die |do|dump|each|eof|eval|exec|exists|exit|exp|fcntl|fileno|flock|fork|"
    "format|formline|getc|getlogin|getpeername|getpgrp|getppid|getpriority|getsockname|getsockopt|glob|gmtime|goto|grep|"
    "hex|import|index|int|ioctl|join|keys|kill|last|lc|lcfirst|length|link|listen|local|localtime|log|lstat|map|mkdir|"
    "msgctl|msgget|msgrcv|msgsnd|my|next|no|oct|open|opendir|ord|pack|package|pipe|pop|pos|print|printf|push|quotemeta|"
    "rand|read|readdir|readlink|recv|redo|ref|rename|require|reset|return|reverse|rewinddir|remdir|scalar|seek|seekdir|"
    "select|semctl|semget|semop|send|setpgrp|setpriority|setsockopt|shift|shmctl|shmget|shmread|shmwrite|shutdown|sin|"
    "sleep|socket|socketpair|sort|splice|split|sprintf|sqrt|srand|stat|study|substr|symlink|syscall|sysopen|sysread|"
    "sysseek|system|syswrite|tell|telldir|tie|tied|time|times|truncate|uc|ucfirst|umask|undef|unlink|unpack|unshift|"
    "utime|values|vec|wait|waitpid|wantarray|warn|write|$";

} // namespace

CodeMaxLanguage perlLanguage()
{
    CodeMaxLanguage perl;
    perl.CaseSensitive = true;
    perl.Style = 0;
    perl.Keywords = entryList(keywords);
    perl.Operators = wordList(u"= > < /");
    perl.SingleLineComments = u"# "_s;
    perl.ScopeKeywords1 = u"{"_s;
    perl.ScopeKeywords2 = u"}"_s;
    perl.StringDelims = wordList(u"\" '");
    perl.EscapeChar = u"\\"_s;
    perl.TerminatorChar = u";"_s;
    return perl;
}

} // namespace zephira
