// first-picture.mjs: the markup and the style of the game's first picture, made by the program
// itself, so that a browser shows it while it still loads the program. Run when the page is built,
// by Node: first-picture.mjs FOLDER MARKUP STYLE
import { readFileSync, writeFileSync } from "node:fs";
import vm from "node:vm";

const [folder, markupFile, styleFile] = process.argv.slice(2);

// As much of a document as page.js needs to make the first windows in.
class Element {
  attributes = {};
  children = [];
  dataset = {};
  style = { setProperty() {} };
  constructor(localName) { this.localName = localName; }
  get nextSibling() { return this.parent.children[this.parent.children.indexOf(this) + 1]; }
  get firstChild() { return this.children[0]; }
  get lastChild() { return this.children.at(-1); }
  append(child) {
    this.children.push(child);
    child.parent = this;
  }
  after(element) {
    element.parent.children.splice(element.parent.children.indexOf(element), 1);
    element.parent = this.parent;
    this.parent.children.splice(this.parent.children.indexOf(this) + 1, 0, element);
  }
  setAttribute(name, value) { this.attributes[name] = value; }
  removeAttribute(name) { delete this.attributes[name]; }
  toggleAttribute(name, on) { if (on) this.attributes[name] = ""; }
  addEventListener() {}
  focus() {}
  all() { return [this, ...this.children.flatMap(child => child.all())]; }
  querySelector(selector) {
    const [, name, value] = /^\[(.*)=(.*)\]$/.exec(selector);
    return this.all().find(element => element.attributes[name] === value) ?? null;
  }
  querySelectorAll() { return []; }
}

const root = new Element("body");
for (const id of ["screen", "notice", "again", "news", "stock"]) {
  root.append(Object.assign(new Element("div"), { id }));
}
root.dataset.files = "";
const getElementById = id => (id && root.all().find(element => element.id === id)) || null;
const context = vm.createContext({
  document: {
    body: root, documentElement: new Element("html"), currentScript: { src: "" }, styleSheets: [{ cssRules: [] }],
    createElement: name => new Element(name), getElementById,
  },
  innerWidth: 1280, innerHeight: 720, devicePixelRatio: 1,
  addEventListener() {}, clearInterval() {}, setInterval() {},
  navigator: { userActivation: { hasBeenActive: false } }, localStorage: {}, Audio: class { pause() {} }, console, performance, TextDecoder,
  fetch: async () => new Response(readFileSync(`${folder}/malvone.wasm`), { headers: { "Content-Type": "application/wasm" } }),
});
context.window = context;
for (const script of ["page.js", "malvone.js"]) {
  vm.runInContext(readFileSync(`${folder}/${script}`, "utf8"), context);
}
const page = vm.runInContext("page", context);
const limit = setTimeout(() => { throw new Error("The program does not come to its first picture."); }, 60_000);
await new Promise(shown => { page.nextEvent = () => new Promise(shown); });
clearTimeout(limit);

// What covers the screen covers it at every size; any other window lies about its middle.
const styleOf = ({ className, told, style: { setProperty, ...style } }) => {
  if (Number(told.width) === page.width()) {
    Object.assign(style, { left: 0, top: 0, width: "100%", height: "100%" });
  } else if (className === "Window") {
    style.left = `calc(50vw + ${told.left - page.width() / 2} * var(--u))`;
    style.top = `calc(50vh + ${told.top - page.height() / 2} * var(--u))`;
  }
  return Object.entries(style).map(([name, value]) =>
    `${name.replace(/[A-Z]/g, capital => "-" + capital.toLowerCase())}:${value}`).join(";");
};

// The page's security policy forbids styles in the markup, so each gets a class. A style that
// several elements share is written once.
const styles = new Map();
const markupOf = element => {
  if (element.hidden) return "";
  const style = styleOf(element);
  if (style && !styles.has(style)) styles.set(style, `f${styles.size}`);
  const pairs = [["class", `${element.className} ${styles.get(style) ?? ""}`.trim()], ["role", element.attributes.role],
    ["data-border", element.attributes["data-border"]], ["data-picture", element.dataset.picture]];
  const attributes = pairs.filter(([, value]) => value !== undefined).map(([name, value]) => `${name}="${value}"`);
  const text = (element.textContent ?? "").replaceAll("&", "&amp;").replaceAll("<", "&lt;");
  return `<${element.localName} ${attributes.join(" ")}>${text}${element.children.map(markupOf).join("")}</${element.localName}>`;
};
const windows = getElementById("screen").children.map(markupOf).join("");
writeFileSync(markupFile, `<div id="first" data-size="${page.design.join(" ")}" aria-hidden="true" inert>${windows}</div>`);
writeFileSync(styleFile, [...styles].map(([style, name]) => `.${name} { ${style} }\n`).join(""));
process.exit(0);
