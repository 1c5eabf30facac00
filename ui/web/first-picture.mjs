// first-picture.mjs: runs the program up to its first picture and turns that into a part of the page,
// to be seen while the browser still loads the program: pictures as one drawing, texts as elements.
import { readFileSync } from "node:fs";
import vm from "node:vm";

// Runs the program until it waits for an event. Gives the elements it has put, by id.
const listen = folder => new Promise((resolve, reject) => {
  const elements = new Map();
  const told = {
    length: name => ({ screenWidth: 19200, screenHeight: 10800, mainWidth: 11325, mainHeight: 7305, bar: 360 })[name],
    folderExists: () => true,
    storageAllowed: () => true,
    writeEntry: () => 0,
    told: {},
    put(id, kind, inside) {
      elements.set(id, { kind, id, inside, ...elements.get(id), ...told.told });
      told.told = {};
    },
    pause: () => Promise.resolve(),
    nextEvent: () => new Promise(() => resolve(elements)),
  };
  const context = vm.createContext({
    page: new Proxy(told, { get: (all, name) => all[name] ?? (() => {}) }),
    document: { currentScript: { src: "" } }, console, performance, TextDecoder, setTimeout, clearTimeout,
  });
  context.window = context;
  vm.runInContext(readFileSync(`${folder}/malvone.js`, "utf8"), context);
  context.malvone({ wasmBinary: readFileSync(`${folder}/malvone.wasm`) });
  setTimeout(() => reject(new Error("The program does not come to its first picture.")), 60_000).unref();
});

const escape = text => text.replaceAll("&", "&amp;").replaceAll("<", "&lt;");
const lengths = ["--left", "--top", "--width", "--height"];
const box = element => lengths.map(name => Number(element[name]));

// Draws the picture of an element, stretched or in its own size. Each picture is defined once, with ids
// of its own. The cells of the empty board are all alike: one pattern is faster than 140 pictures.
const painter = pictures => {
  const defined = new Map();
  const contentOf = name => {
    const [, given, drawn] = /<svg ([^>]*)>(.*)<\/svg>/s.exec(readFileSync(`${pictures}/${name}.svg`, "utf8"));
    const [width, height] = ["width", "height"].map(side => Number(new RegExp(` ${side}="(\\d+)"`).exec(given)[1]));
    const own = drawn.replace(/id="/g, `$&${name}-`).replace(/(url\(#|href="#)/g, `$&${name}-`).replaceAll("\n", "");
    return { size: `width="${width}" height="${height}"`, own, view: /viewBox="[^"]*"/.exec(given)[0] };
  };
  return {
    definitions: () => [...defined.values()].join(""),
    picture(name, element) {
      const { size, own, view } = contentOf(name);
      const [, , width, height] = box(element).map(twips => twips / 15);
      const shown = element.kind === "Image" ? view : `viewBox="0 0 ${width} ${height}"`;
      const kind = element.cells ? `pattern patternUnits="userSpaceOnUse" ${size}` : `symbol ${view} preserveAspectRatio="none"`;
      defined.set(name, `<${kind} id="${name}">${own}</${kind.split(" ")[0]}>`);
      const content = element.cells ? `<rect fill="url(#${name})" width="${width}" height="${height}"/>` : `<use href="#${name}" ${size}/>`;
      return `<svg class="${element.kind} first${element.number}" ${shown} preserveAspectRatio="none">${content}</svg>`;
    },
  };
};

// How far the parts of the main window move in the upright layout, in twips. A control belongs to the
// first part that holds its upper left corner. Text ends where it is `free` of the offers: where it is
// larger than designed, it needs another line.
const parts = [
  { right: 3200, bottom: 2700, across: 0, down: 6650 },       // title, manual, information
  { right: 3200, bottom: 6945, across: 3480, down: 3800 },    // displays, new game, end
  { right: 11325, bottom: 5250, across: -3660, down: 0 },     // the board
  { right: 3500, bottom: 6945, across: -3240, down: 0, free: 420 },  // what to do next
  { right: 5000, bottom: 6945, across: -3660, down: 0 },      // what the move is worth
  { right: 10500, bottom: 6945, across: -3840, down: 0 },     // the offers
  { right: Infinity, bottom: Infinity, across: -4000, down: 0 },  // their arrows
];
const moved = element => parts.find(({ right, bottom }) => element["--left"] < right && element["--top"] < bottom);

// `folder` holds the program. Gives the markup of the first picture and the styles that go with it,
// apart because the page's security policy forbids styles in markup.
export const firstPicture = async (folder, pictures) => {
  const elements = await listen(folder);
  const main = elements.get("frmTessel");
  const controls = [...elements.values()].filter(element => element.inside === main.id && element["--level"]);
  const paint = painter(pictures);

  const seen = controls.filter(({ hidden }) => !hidden).sort((a, b) => a["--level"] - b["--level"]);
  const isCell = ({ id }) => id.startsWith("frmTessel.imgFeld(");
  const cells = seen.filter(isCell).map(box);
  const board = { ...seen.find(isCell), cells: true, "--width": 14 * 480, "--height": 10 * 480,
    "--left": Math.min(...cells.map(([left]) => left)), "--top": Math.min(...cells.map(([, top]) => top)) };
  const ground = { kind: "Ground", "data-picture": main["data-picture"], "--left": 0, "--top": 0, "--width": 11325, "--height": 6945 };
  const shown = [ground, ...seen.filter(element => !isCell(element)), board].map((element, number) => ({ ...element, number }));
  const drawn = shown.map(element => element["data-picture"] ? paint.picture(element["data-picture"], element)
    : `<div class="${element.kind} first${element.number}">${escape(element.textContent ?? "")}</div>`);

  const bar = [...elements.values()].filter(({ kind, inside }) => inside === main.id && kind === "MenuEntry");
  // Until its picture has loaded, the backdrop is plain.
  const backdrop = readFileSync(`${pictures}/${elements.get("frmHintergrund.Image1")["data-picture"]}.svg`, "utf8");
  const rules = element => Object.keys(element).filter(name => name.startsWith("--")).map(name => `${name}: ${element[name]};`).join(" ");
  const upright = parts.map(part => {
    const own = [...controls, ...shown].filter(element => element !== shown[0] && moved(element) === part)
      .map(({ number, id }) => number ? `.first${number}` : `[id^="${id.replace(/\d+\)$/, "")}"]`);
    return `.upright :is(${[...new Set(own)].join(", ")}) { --shift-x: ${part.across}; --shift-y: ${part.down}; padding-right: calc(${part.free ?? 0} * var(--u)); }`;
  });
  return {
    markup: `<div id="first" aria-hidden="true"><div class="Window first" data-bar="true"><div role="menubar">` +
      `${bar.map(entry => `<span>${escape(entry.textContent)}</span>`).join("")}</div><div class="Client">` +
      `<svg width="0" height="0">${paint.definitions()}</svg>${drawn.join("")}</div></div></div>`,
    style: [`#first { background: ${/fill="(#\w+)"/.exec(backdrop)[1]}; }`, `.first { --ground: ${main["--ground"]}; }`,
      ...shown.map(element => `.first${element.number} { ${rules(element)} }`), ...upright,
      `.upright :is(#${main.id}, .first0) { --ground-top: ${parts[0].down}; }`, ""].join("\n"),
  };
};
