// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView elements = uR"(
a abbr acronym address applet area article aside audio b base basefont bdi bdo bgsound big blink blockquote body br button
canvas caption center cite code col colgroup command comment content data datalist dd del details dfn dialog dir div dl dt
element em embed fencedframe fieldset figcaption figure font footer form frame frameset h1 h2 h3 h4 h5 h6 head header
hgroup hr html i iframe ilayer image img input ins isindex kbd keygen label layer legend li link listing main map mark
marquee math menu menuitem meta meter multicol nav nextid nobr noembed noframes nolayer noscript object ol optgroup option
output p param picture plaintext portal pre progress q rb rbc rp rt rtc ruby s samp script search section select server
shadow slot small source spacer span strike strong style sub summary sup svg table tbody td template textarea tfoot th
thead time title tr track tt u ul var video wbr xml xmp
animate animateMotion animateTransform circle clipPath defs desc ellipse filter foreignObject g line linearGradient marker
mask metadata mpath path pattern polygon polyline radialGradient rect set stop switch symbol text textPath tspan use view
feBlend feColorMatrix feComponentTransfer feComposite feConvolveMatrix feDiffuseLighting feDisplacementMap feDistantLight
feDropShadow feFlood feFuncA feFuncB feFuncG feFuncR feGaussianBlur feImage feMerge feMergeNode feMorphology feOffset
fePointLight feSpecularLighting feSpotLight feTile feTurbulence
annotation maction menclose merror mfenced mfrac mi mmultiscripts mn mo mover mpadded mphantom mroot mrow ms mspace msqrt
mstyle msub msubsup msup mtable mtd mtext mtr munder munderover semantics
cf* asp:* jsp:*
)";

constexpr QStringView attributes = uR"(
abbr above accept accept-charset accesskey action align alink allow allowfullscreen alpha alt archive as async
autocapitalize autocomplete autocorrect autofocus autoplay autostart axis background balance behavior below bgcolor
bgproperties blocking border bordercolor bordercolordark bordercolorlight bottommargin capture cellpadding cellspacing
char charoff charset checked cite class classid clear clip closedby code codebase codetype color cols colspan command
commandfor compact content contenteditable contextmenu controls controlslist coords crossorigin data datafld dataformatas
datapagesize datasrc datetime declare decoding default defer delay dir direction dirname disabled disablepictureinpicture
disableremoteplayback download draggable dynsrc elementtiming enctype enterkeyhint event exportparts face fetchpriority
for form formaction formenctype formmethod formnovalidate formtarget frame frameborder framespacing gutter headers height
hidden hidefocus high href hreflang hspace http-equiv icon id imagesizes imagesrcset inert inputmode integrity is ismap
itemid itemprop itemref itemscope itemtype keytype kind label lang language leftmargin link list longdesc loop loopdelay
low lowsrc manifest marginheight marginwidth max maxlength media method min minlength multiple muted name nohref nomodule
nonce noresize noshade novalidate nowrap object open optimum part pattern ping placeholder playsinline pluginspage
pluginurl point-size popover popovertarget popovertargetaction poster preload profile prompt property radiogroup readonly
referrerpolicy rel required rev reversed rightmargin role rows rowspan rules runat sandbox scheme scope scoped scroll
scrollamount scrolldelay scrolling selected shadowrootclonable shadowrootdelegatesfocus shadowrootmode shape size sizes
slot span spellcheck src srcdoc srclang srcset standby start step style summary tabindex target text title titleabr
topmargin translate truespeed type typemustmatch units unselectable usemap valign value valuetype version vlink volume
vspace width wrap writingsuggestions xml:lang xml:space xmlns xmlns:*
onabort onactivate onafterprint onafterupdate onanimationcancel onanimationend onanimationiteration onanimationstart
onauxclick onbeforeactivate onbeforecopy onbeforecut onbeforedeactivate onbeforeeditfocus onbeforeinput onbeforematch
onbeforepaste onbeforeprint onbeforetoggle onbeforeunload onbeforeupdate onblur onbounce oncancel oncanplay
oncanplaythrough oncellchange onchange onclick onclose oncommand oncontextlost oncontextmenu oncontextrestored
oncontrolselect oncopy oncuechange oncut ondataavailable ondatasetchanged ondatasetcomplete ondblclick ondeactivate ondrag
ondragend ondragenter ondragleave ondragover ondragstart ondrop ondurationchange onemptied onended onerror onerrorupdate
onfilterchange onfinish onfocus onfocusin onfocusout onformdata onfullscreenchange ongotpointercapture onhashchange onhelp
oninput oninvalid onkeydown onkeypress onkeyup onlanguagechange onlayoutcomplete onload onloadeddata onloadedmetadata
onloadstart onlosecapture onlostpointercapture onmessage onmessageerror onmousedown onmouseenter onmouseleave onmousemove
onmouseout onmouseover onmouseup onmousewheel onmove onmoveend onmovestart onoffline ononline onpagehide onpagereveal
onpageshow onpageswap onpaste onpause onplay onplaying onpointercancel onpointerdown onpointerenter onpointerleave
onpointermove onpointerout onpointerover onpointerrawupdate onpointerup onpopstate onprogress onpropertychange
onratechange onreadystatechange onrejectionhandled onreset onresize onresizeend onresizestart onrowenter onrowexit
onrowsdelete onrowsinserted onscroll onscrollend onsearch onsecuritypolicyviolation onseeked onseeking onselect
onselectionchange onselectstart onslotchange onstalled onstart onstop onstorage onsubmit onsuspend ontimeupdate ontoggle
ontouchcancel ontouchend ontouchmove ontouchstart ontransitioncancel ontransitionend ontransitionrun ontransitionstart
onunhandledrejection onunload onvolumechange onwaiting onwheel
clip-path clip-rule cx cy d dx dy fill fill-opacity fill-rule font-family font-size font-style font-weight fx fy
gradientTransform gradientUnits marker-end marker-mid marker-start offset opacity pathLength patternUnits points
preserveAspectRatio r rotate rx ry spreadMethod stop-color stop-opacity stroke stroke-dasharray stroke-dashoffset
stroke-linecap stroke-linejoin stroke-miterlimit stroke-opacity stroke-width text-anchor textLength transform viewBox x x1
x2 xlink:href y y1 y2
data-* aria-* on*
)";

constexpr QStringView entities = uR"(
quot QUOT amp AMP lt LT gt GT apos nbsp iexcl cent pound curren yen brvbar sect uml copy COPY ordf laquo not shy reg REG
macr deg plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest
Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde Ograve
Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc atilde auml aring
aelig ccedil egrave eacute ecirc euml igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash
ugrave uacute ucirc uuml yacute thorn yuml OElig oelig Scaron scaron Yuml fnof circ tilde
Alpha Beta Gamma Delta Epsilon Zeta Eta Theta Iota Kappa Lambda Mu Nu Xi Omicron Pi Rho Sigma Tau Upsilon Phi Chi Psi Omega
alpha beta gamma delta epsilon zeta eta theta iota kappa lambda mu nu xi omicron pi rho sigmaf sigma tau upsilon phi chi
psi omega thetasym upsih piv
ensp emsp thinsp zwnj zwj lrm rlm ndash mdash lsquo rsquo sbquo ldquo rdquo bdquo dagger Dagger bull hellip permil prime
Prime lsaquo rsaquo oline frasl euro image weierp real trade alefsym larr uarr rarr darr harr crarr lArr uArr rArr dArr
hArr forall part exist empty nabla isin notin ni prod sum minus lowast radic prop infin ang and or cap cup int there4 sim
cong asymp ne equiv le ge sub sup nsub sube supe oplus otimes perp sdot lceil rceil lfloor rfloor lang rang loz spades
clubs hearts diams
Tab NewLine excl num dollar percnt lpar rpar ast plus comma period sol colon semi equals quest commat lsqb lbrack bsol
rsqb rbrack Hat lowbar grave lcub lbrace verbar vert rcub rbrace horbar hyphen dash check checkmark cross star starf phone
female male sung flat natural sharp numsp puncsp hairsp emsp13 emsp14 NoBreak
Amacr amacr Abreve abreve Aogon aogon Cacute cacute Ccirc ccirc Cdot cdot Ccaron ccaron Dcaron dcaron Dstrok dstrok Emacr
emacr Edot edot Eogon eogon Ecaron ecaron Gbreve gbreve Gcirc gcirc Gdot gdot Hcirc hcirc Hstrok hstrok Idot imath Imacr
imacr Iogon iogon Jcirc jcirc Kcedil kcedil Lacute lacute Lcaron lcaron Lstrok lstrok Nacute nacute Ncaron ncaron Odblac
odblac Omacr omacr Racute racute Rcaron rcaron Sacute sacute Scedil scedil Scirc scirc Tcaron tcaron Tcedil tcedil Ubreve
ubreve Udblac udblac Umacr umacr Uogon uogon Uring uring Wcirc wcirc Ycirc ycirc Zacute zacute Zcaron zcaron Zdot zdot
)";

} // namespace

LanguageDefinition htmlDefinition()
{
    CodeMaxLanguage html;
    html.CaseSensitive = false;
    html.Style = 1;
    html.Operators = wordList(u"< > / =");
    html.MultiLineComments1 = u"<!--"_s;
    html.MultiLineComments2 = u"-->"_s;
    html.StringDelims = wordList(u"\" '");
    html.TagElementNames = wordList(elements);
    html.TagAttributeNames = wordList(attributes);
    html.TagEntities = wordList(entities);
    return {html, Dialect::Html};
}

} // namespace zephira
