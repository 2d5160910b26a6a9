// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/ihtmltags.h"

#include <array>

namespace zephira {

namespace {

// A few rows look odd, such as the one with two brackets and those whose end tag is another one's. They are what users
// know, and stay.
constexpr auto tags = std::to_array<QStringView>({
    u"<!ihtml>", u"<iabs>", u"<iaddheader>", u"<iasc>", u"<iassign>", u"<iauthor></iauthor>", u"<ibanner>",
    u"<ibannerlog>", u"<ibaseconv>", u"<ibeep>", u"<ibit>", u"<ibreak>", u"<icase></icase>", u"<iceil>", u"<icgi>",
    u"<ichr>", u"<iclassc>", u"<iclean>", u"<iclear>", u"<iconfig>", u"<icontent>", u"<icookie>", u"<icopyfile>",
    u"<icounter>", u"<icrdate>", u"<icrdatetime>", u"<icrtime>", u"<idate>", u"<idatediff>", u"<idateext>",
    u"<idatetime>", u"<idbcolumn>", u"<idbloop></idbloop>", u"<idbquery></idbquery>", u"<idbresults></idbresults>",
    u"<idbtable></idbtable>", u"<idefault>", u"<idir>", u"<idotdot>", u"<idownload>", u"<idsn>", u"<idtstruct>",
    u"<ielse>", u"<ielseif>", u"<ieq>", u"<ierror></ierror>", u"<ierrorpage>", u"<ieval>", u"<ifax></ifax>",
    u"<ifile>", u"<ifileinfo>", u"<ifinger>", u"<ifloor>", u"<iftp>", u"<iftp></iftp>", u"<iftpaction>",
    u"<ifunccall>", u"<ifunction></ifunction>", u"<igetmimefile>", u"<igetmimename>", u"<igmtime>", u"<iheapdump>",
    u"<ihtml>", u"<ihtmldecode>", u"<ihttp>", u"<ihtx>", u"<iif></iif>", u"<iimagearc>", u"<iimageclearcolor>",
    u"<iimagecopy>", u"<iimagecreate>", u"<iimagedestroy>", u"<iimagefill>", u"<iimagefromfile>", u"<iimagegetcolor>",
    u"<iimagegetcomponent>", u"<iimagegetinfo>", u"<iimagegetpixel>", u"<iimageline>", u"<iimagerect>",
    u"<iimagesetbrush>", u"<iimagesetinterlace>", u"<iimagesetpixel>", u"<iimagesetstyle>", u"<iimagesettransparent>",
    u"<iimagestretch>", u"<iimagetext>", u"<iimagewithin>", u"<iimagewrite>", u"<iinclude>", u"<iip>", u"<iisalpha>",
    u"<iisdate>", u"<iisdef>", u"<iisdigit>", u"<iisformat>", u"<iisleap>", u"<iistime>", u"<iistrue>", u"<ilink>",
    u"<ilistcreate>", u"<ilistget>", u"<ilistinsert>", u"<iloop></iloop>", u"<imail></imail>", u"<imath>", u"<imax>",
    u"<imin>", u"<imultipartt>", u"<inap>", u"<inumtext>", u"<ipager>", u"<ipay>", u"<ipeek>", u"<iping>",
    u"<ipop></ipop>", u"<ipopfetch>", u"<ipopheader>", u"<iport></iport>", u"<iportaction>", u"<iprintf>", u"<ipush>",
    u"<<irandom>", u"<iredir>", u"<irefresh>", u"<iregexfind>", u"<iregexlist>", u"<iregexreplace>", u"<iregkey>",
    u"<iregval>", u"<irem>", u"<iremblock></iremblock>", u"<ireplace><irndnum>", u"<ischedule>", u"<iset></isql>",
    u"<ishift>", u"<isql>", u"<isqlcolumns>", u"<isqlfetch>", u"<isqlmore>", u"<isqlnextset>", u"<isqlproccolumns>",
    u"<isqlprocs>", u"<isqltables>", u"<isqltrans></islqtrans>", u"<istop>", u"<istrcat>", u"<istrcmp>",
    u"<istrcspan>", u"<istricmp>", u"<istrin>", u"<istripchr>", u"<istrjust>", u"<istrkeep>", u"<istrleft>",
    u"<istrlen>", u"<istrlpad>", u"<istrlwdt>", u"<istrlwr>", u"<istrncmp>", u"<istrnicmp>", u"<istrrem>",
    u"<istrrev>", u"<istrright>", u"<istrrpad>", u"<istrspan>", u"<istrtrim>", u"<istrupr>", u"<istrwith>", u"<isvc>",
    u"<iswitch></iswitch>", u"<itelget>", u"<itelnet></itelnet>", u"<itelset>", u"<itempname>", u"<ithreads>",
    u"<itime>", u"<itimediff>", u"<itimeslot>", u"<iundefine>", u"<iundefineset>", u"<iurlencode>", u"<ival>",
    u"<ividcap>", u"<iviewfile>", u"<iwhile></iwhile>",
});

} // namespace

std::span<const QStringView> ihtmlTags()
{
    return tags;
}

} // namespace zephira
