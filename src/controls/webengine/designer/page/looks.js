// SPDX-License-Identifier: GPL-3.0-or-later

// What is shown beside the page itself. It is all in style sheets that belong to the view, so that nothing of it can get
// into the page's text.

const looks = {borders: false, details: false, browseMode: false, snapToGrid: false};

const glyphLook = `all: initial; display: inline-block !important; font: 10px/14px sans-serif; padding: 0 2px;
    margin: 0 1px; border: 1px solid #b08000; border-radius: 2px; background: #fff4c8; color: #604800;
    vertical-align: baseline; white-space: nowrap;`;

// Elements that show nothing by themselves, and the word that stands for each.
const glyphs = [
    ['a[name]:not([href])', 'anchor'],
    ['form', 'form'],
    ['map', 'map'],
    ['area', 'area'],
    ['input[type=hidden]', 'hidden'],
    ['object', 'object'],
    ['embed', 'embed'],
    ['applet', 'applet'],
    ['iframe', 'frame'],
    ['noscript', 'noscript'],
];

// These would show their text if they were given a place.
const silentGlyphs = ['script', 'style'];

const detailRules = () => [
    ...glyphs.map(([selector, word]) => `${selector}::before { ${glyphLook} content: "${word}"; }`),
    ...silentGlyphs.map(name => `body ${name} { display: inline-block !important; font-size: 0 !important;
        -webkit-user-modify: read-only; }
        body ${name}::before { ${glyphLook} content: "${name}"; }`),
    'input[type=hidden], map, area, noscript { display: inline-block !important; }',
    `${markName}[mark$=c] { display: inline-block !important; }`,
    `${markName}[mark$=c]::before { ${glyphLook} content: "<!"; }`,
];

const borderRules = () => [
    'table, td, th { outline: 1px dotted #909090 !important; outline-offset: -1px; }',
    'form { outline: 1px dashed #c06060 !important; }',
    'div { outline: 1px dotted #b0b0e0; outline-offset: -1px; }',
];

const markRules = () => [
    `${markName} { -webkit-user-modify: read-only; user-select: all; display: none; }`,
    `${markName}[mark$=s] { display: inline-block !important; }`,
    `${markName}[mark$=s]::before { ${glyphLook} content: "<%"; }`,
];

const hiddenMarkRules = () => [`${markName} { display: none !important; }`];

// The pointer over a grip.
const cursorSheet = new CSSStyleSheet();

const sheetOf = rules => {
    const sheet = new CSSStyleSheet();
    sheet.replaceSync(rules.join('\n'));
    return sheet;
};

const showLooks = () => {
    const rules = looks.browseMode ? hiddenMarkRules()
        : [...markRules(), ...looks.details ? detailRules() : [], ...looks.borders ? borderRules() : []];
    setDocumentMember('adoptedStyleSheets', [sheetOf(rules), cursorSheet]);
    setDocumentMember('designMode', looks.browseMode ? 'off' : 'on');
    nativeCommand('styleWithCSS', false, false);
    nativeCommand('defaultParagraphSeparator', false, 'p');
};
