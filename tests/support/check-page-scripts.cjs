#!/usr/bin/env node
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

// usage: check-page-scripts.cjs FILE...
//
// Checks the modules of the pages of designer and live page. Each name that a module uses must be declared by it, imported, or one of the
// browser's. Each import must be exported by the module that it names, be used, and never be assigned to. Each export must
// be imported by another module. The members of a frozen list, such as Command.Bold, must be in that list. Each fault is
// printed as a line of its own, and the exit status is then 1.
//
//     FILE:LINE: what is wrong

const fs = require('fs');
const path = require('path');
const acorn = require('acorn');

const browserNames = new Set(`Array Boolean CSS CSSStyleSheet DOMParser Document Error HTMLTableElement Infinity JSON Map Math
    MutationObserver Node NodeFilter Number Object QWebChannel Range RangeError RegExp Set String Symbol Text WeakMap
    clearTimeout document getComputedStyle getSelection globalThis innerHeight innerWidth performance qt queueMicrotask
    setTimeout undefined window`.split(/\s+/));

const problems = [];

class Scope {
    constructor(parent, isFunction) {
        Object.assign(this, {parent, isFunction, names: new Map()});
    }

    declare(name, kind) {
        let scope = this;
        while (kind === 'var' && !scope.isFunction)
            scope = scope.parent;
        scope.names.set(name, {kind, uses: 0});
    }

    find(name) {
        for (let scope = this; scope; scope = scope.parent) {
            if (scope.names.has(name))
                return scope.names.get(name);
        }
        return null;
    }
}

const isNode = value => value !== null && typeof value === 'object' && typeof value.type === 'string';
const childrenOf = node => Object.values(node).flat().filter(isNode);

// The names bound by a destructuring pattern.
const boundNames = pattern => {
    switch (pattern?.type) {
    case 'Identifier':
        return [pattern.name];
    case 'ObjectPattern':
        return pattern.properties.flatMap(property => boundNames(property.value ?? property.argument));
    case 'ArrayPattern':
        return pattern.elements.flatMap(boundNames);
    case 'AssignmentPattern':
        return boundNames(pattern.left);
    case 'RestElement':
        return boundNames(pattern.argument);
    default:
        return [];
    }
};

const isFunction = node => /Function/.test(node.type);
const opensScope = node => isFunction(node) || /^(Program|BlockStatement|For.*Statement|SwitchStatement|CatchClause)$/.test(node.type);

// The keys of Object.freeze({...}), or null.
const frozenKeys = node => {
    const isFrozen = node?.type === 'CallExpression' && node.callee.type === 'MemberExpression'
        && node.callee.object.name === 'Object' && node.callee.property.name === 'freeze';
    const list = isFrozen ? node.arguments[0] : null;
    return list?.type === 'ObjectExpression' ? new Set(list.properties.map(each => each.key.name)) : null;
};

class Module {
    constructor(file) {
        this.file = file;
        this.name = path.basename(file);
        this.imports = [];
        this.exports = new Map();
        this.frozen = new Map();
        this.members = [];
        const text = fs.readFileSync(file, 'utf8');
        try {
            this.tree = acorn.parse(text, {ecmaVersion: 2022, sourceType: 'module', locations: true});
        } catch (error) {
            this.tell(error.loc?.line ?? 1, error.message);
            return;
        }
        this.top = new Scope(null, true);
        this.visitAll(this.tree, this.top);
    }

    tell(line, problem) {
        problems.push(`${this.file}:${line}: ${problem}`);
    }

    declareIn(node, scope) {
        for (const child of childrenOf(node)) {
            const statement = /^Export/.test(child.type) ? child.declaration : child;
            if (statement?.type === 'VariableDeclaration') {
                for (const {id, init} of statement.declarations) {
                    for (const name of boundNames(id))
                        scope.declare(name, statement.kind);
                    if (scope === this.top && frozenKeys(init))
                        this.frozen.set(id.name, frozenKeys(init));
                }
            } else if (statement && /^(Function|Class)Declaration$/.test(statement.type)) {
                scope.declare(statement.id.name, 'const');
            }
        }
    }

    visitAll(node, scope) {
        this.declareIn(node, scope);
        const names = isFunction(node) ? node.params.flatMap(boundNames) : node.type === 'CatchClause' ? boundNames(node.param) : [];
        for (const name of names)
            scope.declare(name, 'let');
        if (isFunction(node) && node.type !== 'ArrowFunctionExpression')
            scope.declare('arguments', 'let');
        for (const child of childrenOf(node)) {
            if (child.type === 'ImportDeclaration')
                this.takeImport(child);
        }
        for (const child of childrenOf(node))
            this.visit(child, scope);
    }

    takeImport(node) {
        for (const each of node.specifiers) {
            if (each.type !== 'ImportSpecifier' || each.imported.name !== each.local.name)
                this.tell(each.loc.start.line, 'import each name by itself and under its own name');
            this.top.declare(each.local.name, 'import');
            this.imports.push({name: each.local.name, from: path.basename(node.source.value), line: each.loc.start.line});
        }
    }

    visit(node, scope) {
        switch (node.type) {
        case 'ImportDeclaration':
            return;
        case 'ExportNamedDeclaration':
            if (!node.declaration) {
                this.tell(node.loc.start.line, 'export a name where it is declared');
                return;
            }
            for (const name of node.declaration.id ? [node.declaration.id.name]
                : node.declaration.declarations.flatMap(each => boundNames(each.id)))
                this.exports.set(name, node.loc.start.line);
            break;
        case 'Identifier':
            this.use(node, scope);
            return;
        case 'AssignmentExpression':
        case 'UpdateExpression':
            for (const name of boundNames(node.left ?? node.argument)) {
                const kind = scope.find(name)?.kind;
                if (kind === 'import' || kind === 'const')
                    this.tell(node.loc.start.line, `${name} can't be assigned to`);
            }
            break;
        case 'MemberExpression':
            if (!node.computed && node.object.type === 'Identifier' && ['import', 'const'].includes(this.top.names.get(node.object.name)?.kind)
                && scope.find(node.object.name) === this.top.names.get(node.object.name))
                this.members.push({list: node.object.name, name: node.property.name, line: node.loc.start.line});
            this.visit(node.object, scope);
            if (node.computed)
                this.visit(node.property, scope);
            return;
        case 'Property':
        case 'MethodDefinition':
        case 'PropertyDefinition':
            if (node.computed)
                this.visit(node.key, scope);
            if (node.value)
                this.visit(node.value, scope);
            return;
        case 'LabeledStatement':
        case 'BreakStatement':
        case 'ContinueStatement':
            if (node.body)
                this.visit(node.body, scope);
            return;
        }
        if (opensScope(node)) {
            // The block of a function or a handler shares the scope of its parameters.
            this.visitAll(node, new Scope(scope, isFunction(node)));
            return;
        }
        for (const child of childrenOf(node))
            this.visit(child, scope);
    }

    use(node, scope) {
        const found = scope.find(node.name);
        if (found)
            ++found.uses;
        else if (!browserNames.has(node.name))
            this.tell(node.loc.start.line, `${node.name} is neither declared here nor imported`);
    }
}

const modules = new Map(process.argv.slice(2).map(file => [path.basename(file), new Module(file)]));
const owners = new Map();
const wanted = new Set();

for (const module of modules.values()) {
    for (const {name, from, line} of module.imports) {
        wanted.add(`${from} ${name}`);
        const source = modules.get(from);
        if (!source)
            module.tell(line, `there is no ${from}`);
        else if (source.top && !source.exports.has(name))
            module.tell(line, `${from} exports no ${name}`);
        if (module.top.names.get(name).uses === 0)
            module.tell(line, `${name} is imported and not used`);
        if (source?.frozen.has(name))
            module.frozen.set(name, source.frozen.get(name));
    }
    for (const {list, name, line} of module.members) {
        if (module.frozen.has(list) && !module.frozen.get(list).has(name))
            module.tell(line, `${list} has no ${name}`);
    }
    // The bundle is one function, so a top-level name of one module is taken for all modules.
    for (const [name, {kind}] of module.top?.names ?? []) {
        if (kind === 'import' || name === 'arguments')
            continue;
        if (owners.has(name))
            module.tell(1, `${name} is declared in ${owners.get(name)}, too`);
        owners.set(name, module.name);
    }
}
for (const module of modules.values()) {
    for (const [name, line] of module.exports) {
        if (!wanted.has(`${module.name} ${name}`))
            module.tell(line, `nobody imports ${name}`);
    }
}

for (const problem of problems)
    console.log(problem);
process.exitCode = problems.length > 0 ? 1 : 0;
