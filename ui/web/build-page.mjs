// build-page.mjs: assembles the page.
//   node build-page.mjs SOURCE BINARY OUT
// SOURCE is the repository, BINARY the build folder with program, sounds and manuals, OUT the page.
import { execFileSync } from "node:child_process";
import { createHash } from "node:crypto";
import { copyFileSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { basename, join } from "node:path";
import { firstPicture } from "./first-picture.mjs";

const [source, binary, out] = process.argv.slice(2);
const text = path => readFileSync(path, "utf8");
const part = name => join(source, "ui/web", name);
const write = (name, content) => writeFileSync(join(out, name), content);

rmSync(out, { recursive: true, force: true });
mkdirSync(out, { recursive: true });
const beside = readdirSync(binary).filter(name => /\.(wav|pdf)$/i.test(name)).sort();
for (const name of ["malvone.js", "malvone.wasm", ...beside]) copyFileSync(join(binary, name), join(out, name));
for (const name of ["page.js", "malvone.webmanifest"]) copyFileSync(part(name), join(out, name));

// Telephones crop icons to a shape of their own; there the face lies on a ground with a margin.
const icon = text(join(source, "assets/pictures/icon-tessel.svg"));
const onGround = icon.replace(/<svg [^>]*>/, '<svg xmlns="http://www.w3.org/2000/svg" viewBox="-6 -6 44 44">' +
  '<path fill="#BDBDBD" d="M-6-6h44v44h-44z"/>');
const icons = {
  "malvone.svg": icon, "malvone-maskable.svg": onGround,
  "malvone-touch.png": execFileSync("rsvg-convert", ["--width=180", "--height=180"], { input: onGround }),
};
for (const [name, content] of Object.entries(icons)) write(name, content);

const first = await firstPicture(out, join(source, "assets/pictures"));
write("malvone.css", text(part("page.css")) + first.style);

// One style sheet holds all pictures, so that one request loads them. Pictures are stretched to their
// element: keeping their proportions would leave a margin.
const pictures = readdirSync(join(source, "assets/pictures")).filter(name => name.endsWith(".svg")).sort();
write("pictures.css", pictures.map(file => {
  const name = basename(file, ".svg");
  const svg = text(join(source, "assets/pictures", file)).replaceAll("%", "%25").replaceAll("#", "%23")
    .replaceAll('"', "'").replaceAll("\n", " ").replace("<svg ", "<svg preserveAspectRatio='none' ");
  const url = `url("data:image/svg+xml,${svg}")`;
  return name === "hand" ? `[data-hand] { cursor: ${url} 5 0, pointer; }\n`
    : `[data-picture=${name}] { background-image: ${url}; --across: ${/ width='(\d+)'/.exec(svg)[1]}; }\n`;
}).join(""));

// Files are requested with a mark of their build, so that those of two builds never mix.
const start = `\n${text(part("start.js"))}`;
const sha256 = content => createHash("sha256").update(content);
const integrity = name => `sha256-${sha256(readFileSync(join(out, name))).digest("base64")}`;
const sum = sha256(start);
for (const name of ["index.html.in", "worker.js.in"]) sum.update(text(part(name)));
sum.update(first.markup);
for (const name of readdirSync(out).sort()) sum.update(readFileSync(join(out, name)));
const build = sum.digest("hex").slice(0, 12);
const marked = ["page.js", "malvone.css", "pictures.css", "malvone.js", "malvone.wasm"].map(name => `${name}?${build}`);
const values = {
  BUILD: build, FIRST: first.markup, START: start, BESIDE: beside.join(" "),
  FILES: [...marked, ...Object.keys(icons), "malvone.webmanifest", ...beside].join(" "),
  START_SUM: `'sha256-${sha256(start).digest("base64")}'`, STYLE_SUM: integrity("malvone.css"),
  PAGE_SUM: integrity("page.js"), PICTURES_SUM: integrity("pictures.css"), PROGRAM_SUM: integrity("malvone.js"),
};
for (const name of ["index.html", "worker.js"]) {
  write(name, text(part(`${name}.in`)).replace(/@MALVONE_(\w+)@/g, (_, value) => values[value]));
}
process.exit(0);
