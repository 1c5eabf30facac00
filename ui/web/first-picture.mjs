// first-picture.mjs: the game's first picture, made by the program itself, so that a browser shows it
// while it still loads the program: the main window's pictures as one picture, its words as elements.
import { readFileSync } from "node:fs";
import vm from "node:vm";

// What the program tells a page, up to the first time that it waits: elements by id.
const listen = folder => new Promise((resolve, reject) => {
  const elements = new Map();
  const told = {
    width: () => 19200,
    height: () => 10800,
    storageAllowed: () => true,
    writeEntry: () => 0,
    put(kind, id, inside, described) {
      const of = elements.get(id) ?? { kind, id, inside };
      for (const pair of described.split("\x1e").slice(0, -1)) {
        const [name, value] = pair.split("\x1f");
        of[name] = value;
      }
      elements.set(id, of);
    },
    nextEvent: () => new Promise(() => resolve(elements)),
  };
  const context = vm.createContext({
    page: new Proxy(told, { get: (all, name) => all[name] ?? (() => {}) }),
    Module: {}, document: { currentScript: { src: "" } }, console, performance, TextDecoder, setTimeout, clearTimeout,
    fetch: async () => new Response(readFileSync(`${folder}/malvone.wasm`), { headers: { "Content-Type": "application/wasm" } }),
  });
  context.window = context;
  vm.runInContext(readFileSync(`${folder}/malvone.js`, "utf8"), context);
  setTimeout(() => reject(new Error("The program does not come to its first picture.")), 60_000).unref();
});

const place = (x, y, [width, height]) => `x="${x}" y="${y}" width="${width}" height="${height}"`;
const pixels = (element, name) => element[name] / 15;
const escape = text => text.replaceAll("&", "&amp;").replaceAll("<", "&lt;");
const rules = element => Object.keys(element).filter(name => name.startsWith("--"))
  .map(name => `${name}: ${element[name]};`).join(" ");

// Draws pictures from files. What a picture holds stands once in the whole, with names of its own.
const painter = pictures => {
  const defined = new Map();
  const contentOf = name => {
    const [, given, drawn] = /<svg ([^>]*)>(.*)<\/svg>/s.exec(readFileSync(`${pictures}/${name}.svg`, "utf8"));
    const [width, height] = ["width", "height"].map(side => Number(new RegExp(` ${side}="(\\d+)"`).exec(given)[1]));
    const own = drawn.replace(/id="/g, `$&${name}-`).replace(/(url\(#|href="#)/g, `$&${name}-`).replaceAll("\n", "");
    return { width, height, own, box: /viewBox="[^"]*"/.exec(given)[0] };
  };
  const use = (name, x, y, size) => {
    const { own, box } = contentOf(name);
    defined.set(name, `<symbol id="${name}" ${box} preserveAspectRatio="none">${own}</symbol>`);
    return `<use href="#${name}" ${place(x, y, size)}/>`;
  };
  // In its own size, cut off where its place ends.
  const cut = (name, x, y, size) => {
    const { width, height } = contentOf(name);
    return `<svg ${place(x, y, size)}>${use(name, 0, 0, [width, height])}</svg>`;
  };
  // The cells of the empty board are alike and touch each other: one pattern is drawn faster than 140
  // pictures.
  const tile = (name, x, y, size) => {
    const { own } = contentOf(name);
    if (!defined.has(name)) defined.set(name, `<pattern id="${name}" patternUnits="userSpaceOnUse" ${place(x, y, size)}>${own}</pattern>`);
    return `<rect fill="url(#${name})" ${place(x, y, size)}/>`;
  };
  return { use, cut, tile, definitions: () => [...defined.values()].join("") };
};

// The program lies in `folder`, the pictures in `pictures`. Gives the markup and the style of the
// first picture; the page's security policy forbids styles in the markup.
export const firstPicture = async (folder, pictures) => {
  const elements = await listen(folder);
  const main = elements.get("frmTessel");
  const seen = [...elements.values()].filter(({ inside, hidden }) => inside === main.id && !hidden)
    .sort((a, b) => a["--level"] - b["--level"]);
  const paint = painter(pictures);

  // As on the page, edges are moved to whole pixels.
  const drawn = seen.map(element => {
    const [x, y] = ["--left", "--top"].map(name => Math.round(pixels(element, name)));
    const size = [["--left", "--width", x], ["--top", "--height", y]]
      .map(([start, length, from]) => Math.round(pixels(element, start) + pixels(element, length)) - from);
    const ground = element["--ground"] ? `<rect ${place(x, y, size)} fill="${element["--ground"]}"/>` : "";
    const picture = element["data-picture"];
    const way = element.kind !== "Image" ? paint.cut : element.id.startsWith("frmTessel.imgFeld") ? paint.tile : paint.use;
    return ground + (picture ? way(picture, x, y, size) : "");
  });
  const client = [pixels(main, "--width"), pixels(main, "--height") - pixels(main, "--above")];
  const ground = paint.cut(main["data-picture"], 0, 0, client);
  const whole = `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${client.join(" ")}">` +
    `${paint.definitions()}${ground}${drawn.join("")}</svg>`;

  const words = seen.filter(({ kind, textContent }) => kind === "Label" && textContent);
  const bar = [...elements.values()].filter(({ kind, inside }) => inside === `${main.id} menu` && kind === "MenuEntry");
  // Until its picture is there, the backdrop is as plain as the colour that lies under all of it.
  const backdrop = readFileSync(`${pictures}/${elements.get("frmHintergrund.Image1")["data-picture"]}.svg`, "utf8");
  // Before page.js knows the size to the pixel, the picture has as much of it as style sheets can tell.
  const [wide, high] = [pixels(main, "--width"), pixels(main, "--height")];
  const sizes = [2, 3, 4, 5, 6, 7, 8].map(times =>
    `@media (min-width: ${times * wide}px) and (min-height: ${times * high}px) { :root { --u: calc(${times}px / 15); } }`);
  return {
    markup: `<div id="first" aria-hidden="true" inert><div class="Window first">` +
      `<div role="menubar">${bar.map(entry => `<button>${escape(entry.textContent)}</button>`).join("")}</div><div class="Client">${whole}` +
      `${words.map((label, i) => `<div class="Label first${i}">${escape(label.textContent)}</div>`).join("")}</div></div></div>`,
    style: [
      `@media (max-width: ${wide - 1}px), (max-height: ${high - 1}px) { :root { --u: min(100vw / ${15 * wide}, 100vh / ${15 * high}); } }`,
      ...sizes, `#first { background: ${/fill="(#\w+)"/.exec(backdrop)[1]}; }`, `.first { ${rules(main)} }`,
      ...words.map((label, i) => `.first${i} { ${rules(label)} }`), ""].join("\n"),
  };
};
