// page.test.mjs: the real page in real browsers. Whatever Chromium writes to its console fails the
// test that it comes in.
import assert from "node:assert/strict";
import { spawn, spawnSync } from "node:child_process";
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, truncateSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { after, test } from "node:test";
import { atEnd, chromium, end, firefox, folder, webkit } from "./engines.mjs";

const root = new URL("../..", import.meta.url).pathname;
const built = join(root, "build/web");
const notebook = { width: 1280, height: 720 };
const phone = { width: 390, height: 664, deviceScaleFactor: 3, hasTouch: true, isMobile: true };
const list = "C:\\lindenspiele\\malvone.txt";
const lowList = { "C:\\lindenspiele\\": "", [list]: "Niemand\r\n".repeat(5) + "5\r\n4\r\n3\r\n2\r\n1\r\n" };
const nameBox = "frmBeste.txtSpieler(0)";

after(end);
for (const signal of ["SIGTERM", "SIGINT"]) process.on(signal, () => end().finally(() => process.exit(1)));

const serve = async served => {
  const server = spawn(join(root, "tools/serve.py"), [served, "0"], { stdio: ["ignore", "pipe", "inherit"] });
  atEnd(() => server.kill());
  const line = await new Promise(resolve => server.stdout.once("data", resolve));
  return { address: /http\S+/.exec(line)[0], stop: () => server.kill() };
};
const server = await serve(built);
const shared = await chromium();

// Steps that are written in a chain are done one after the other; awaited, it gives what the last has found.
const chain = (steps, before) => new Proxy(steps, {
  get(all, name) {
    if (name === "then") return before?.then.bind(before);
    if (typeof all[name] !== "function") return all[name];
    return (...given) => chain(all, Promise.resolve(before).then(() => all[name](...given)));
  },
});

// What a player does and sees, in any engine.
const player = tab => {
  const until = async (what, ...given) => {
    for (const last = Date.now() + 60_000; Date.now() < last; await new Promise(done => setTimeout(done, 20))) {
      const found = await tab.run(what, ...given).catch(() => null);  // the page may just be changing
      if (found) return found;
    }
    throw new Error(`${what} has not come true with ${given} on: ${await tab.run(() => document.body.innerText)}`);
  };
  const steps = {
    ...tab,
    until,
    sees: id => until(name => byId(name)?.getClientRects().length && byId(name).getBoundingClientRect().toJSON(), id),
    starts: () => until(() => start.plays && !start.over),
    gone: id => until(name => !byId(name), id),
    reads: (id, words) => until((name, text) => byId(name)?.textContent.includes(text), id, words),
    says: words => until(text => document.body.textContent.includes(text), words),
    has: (id, property, value) => until((name, what, wanted) => byId(name)?.[what] === wanted, id, property, value),
    focused: () => tab.run(() => document.activeElement.id),
    opens: (...ids) => until(all => [...document.querySelectorAll("[aria-expanded=true]")].map(({ id }) => id).join() === all, ids.join()),
    press: async (...all) => { for (const keys of all) await tab.press(keys); },
    middle: async id => {
      const { x, y, width, height } = await steps.sees(id);
      return [x + width / 2, y + height / 2];
    },
    // A pointer that already is there has to move all the same.
    point: async id => {
      const [x, y] = await steps.middle(id);
      for (const way of [1, 0]) await tab.mouse("move", x + way, y);
    },
    click: async id => {
      await steps.point(id);
      for (const kind of ["down", "up"]) await tab.mouse(kind);
    },
    drag: async (id, right, down) => {
      const [x, y] = await steps.middle(id);
      await steps.point(id);
      await tab.mouse("down");
      for (const way of [0.5, 1]) await tab.mouse("move", x + right * way, y + down * way);
      await tab.mouse("up");
    },
    // It fills the page, as far as its shape can, and its edges lie on whole device pixels.
    fits: async (width, height, ratio = 1) => {
      await tab.resize(width, height, ratio);
      await steps.has("frmHintergrund", "offsetWidth", width);
      await steps.has("frmHintergrund", "offsetHeight", height);
      const [window, cell, bar] = await Promise.all(["frmTessel", "frmTessel.imgFeld(1)", "frmTessel.mnuTesselMenu"].map(steps.sees));
      const text = `${width} x ${height} at ${ratio}`;
      const lengths = [window.left, window.top, window.width, cell.left, cell.top, cell.width, cell.height].map(length => length * ratio);
      assert.ok(lengths.every(length => Math.abs(length - Math.round(length)) < 0.05), `${text}: ${lengths}`);
      assert.ok(window.left >= 0 && window.top >= 0 && window.right <= width && window.bottom <= height, text);
      const upright = 3 * height >= 4 * width;
      const possible = upright ? height : Math.min(width * 487 / 755, height);
      assert.ok(window.height >= 0.95 * possible || (upright && window.width >= 0.95 * width), `${text}: ${window.width} x ${window.height}`);
      assert.ok(cell.width >= Math.max(20, upright && width / 18) && bar.height >= 24, text);
    },
    begin: () => game.click("frmTessel.lblNeu").has("frmTessel.Image4", "ariaLabel", "Level: 1"),
    // A stone with a neighbour of its colour below or to the right, or nothing.
    group: () => tab.run(() => {
      const stones = [...document.querySelectorAll('[id^="frmTessel.imgFeld("]')].slice(0, 140).map(cell => cell.ariaLabel.split(", ")[2]);
      const stone = stones.findIndex((colour, i) => colour !== "leer" && [i % 10 < 9 && stones[i + 1], stones[i + 10]].includes(colour));
      return stone < 0 ? null : `frmTessel.imgFeld(${stone + 1})`;
    }),
    take: async () => steps.click(await steps.group()),
    playLevel: async () => { for (let stone; (stone = await steps.group());) await steps.click(stone); },
  };
  const game = chain(steps);
  return game;
};

// A game in a tab of its own. `entries` lie in the storage before it starts.
const open = async (t, { engine = shared, address = server.address, entries, size = notebook, started = true, ...given } = {}) => {
  const tab = await engine.tab({ size, ...given });
  t.after(async () => {
    await tab.close();
    assert.deepEqual(tab.told ?? [], []);
  });
  const game = player(tab);
  await game.go(address);
  if (started) await game.starts();
  if (entries) await game.run(all => void Object.assign(localStorage, all), entries).go(address).starts();
  await game.run(() => { Date.now = () => 1; });  // chance draws the same boards in every run
  return game;
};

test("the server compresses, names what never changes, and refuses what is no name", async () => {
  const answer = (path, headers = {}) => fetch(server.address + path, { headers });
  for (const path of ["%00", "%zz", "%ff"]) assert.equal((await answer(path)).status, 400, path);
  assert.equal((await answer("..%2f..%2fetc/passwd")).status, 404);
  const { headers } = await answer("", { "Accept-Encoding": "gzip" });
  assert.deepEqual(["Content-Encoding", "Cache-Control"].map(name => headers.get(name)), ["gzip", "no-cache"]);
  assert.match((await answer("page.js?mark")).headers.get("Cache-Control"), /immutable/);
  assert.equal((await answer("", { "If-None-Match": headers.get("ETag") })).status, 304);
});

// Copies of the page that each have one file that is not as it was built.
const copies = folder();
const damage = {
  missing: file => rmSync(file),
  empty: file => truncateSync(file),
  cut: file => truncateSync(file, 9000),
  wrong: file => writeFileSync(file, "<!doctype html><title>404</title>"),
};
for (const file of ["malvone.css", "page.js", "pictures.css", "malvone.js", "malvone.wasm", "index.html"]) {
  for (const how of file === "index.html" ? ["cut"] : Object.keys(damage)) {
    const copy = join(copies, `${file}-${how}`);
    cpSync(built, copy, { recursive: true, filter: name => !/\.(wav|pdf)$/i.test(name) });
    damage[how](join(copy, file));
  }
}

for (const [name, engine] of Object.entries({ chromium: () => shared, firefox, webkit })) {
  test(`${name} plays a level, takes an entry, keeps it, and tells of every damaged file`, async t => {
    const game = await open(t, { engine: await engine(), entries: lowList });
    await game.press("Alt+s").sees("frmTessel.mnuTessel(1)").press("Enter").reads("news", "Neues Spiel.");
    await game.point(await game.group()).reads("frmTessel.lblSumme", "Dieser Spielzug ergibt");
    const worth = /\d+/.exec(await game.run(() => byId("frmTessel.lblSumme").textContent));
    await game.take().has("frmTessel.Image3", "ariaLabel", `Punkte: ${worth}`);
    await game.click("frmTessel.lblEnde").sees("frmMsgJa").press("Escape").gone("frmMsgJa").press("Enter", "Enter", "Enter", "Enter");
    await game.playLevel().has("frmTessel.Image4", "ariaLabel", "Level: 5");
    await game.click("frmMsgOk.lblOk").reads("frmMsgJa", "eine neue Bestmarke").press("j").has(nameBox, "value", "Spieler");
    await game.press("Alt+a").type("中").has(nameBox, "value", "Spieler").press("Escape");  // what is being typed is not thrown away
    await game.type("Jo\u0308rg 中Müßig, €").has(nameBox, "value", "Jörg Müßig, €").click("frmBeste.cmdEnde").sees("frmMsgJa");
    assert.match(await game.run(key => localStorage[key], list), /^J\xf6rg M\xfc\xdfig, \x80\r\nNiemand\r\n/);
    await game.go(server.address).starts().press("Alt+i", "End", "Enter").has(nameBox, "value", "Jörg Müßig, €").press("Escape").gone("frmBeste");
    await game.fits(1000, 700).fits(1500, 800).fits(600, 950);
    const { address } = await serve(copies);
    for (const [i, copy] of readdirSync(copies).entries()) {
      if (name !== "chromium" && i % 5 !== 0) continue;  // each file once, and each kind of damage
      await game.go(`${address}${copy}/`).says("Eine seiner Dateien fehlt oder ist beschädigt");
      assert.equal(await game.run(() => document.activeElement.textContent), "Noch einmal beginnen", copy);
      assert.equal(await game.run(() => navigator.locks.query().then(({ held }) => held.length)), 0, copy);
    }
    game.told?.splice(0);  // Chromium tells of the damaged files, as it should
  });
}

test("the page looks as it is kept", async t => {
  const game = await open(t, { size: { width: 1000, height: 660 } });
  const next = await game.begin().take().group();
  await game.point(next).reads("frmTessel.lblSumme", "ergibt");
  // Whoever has changed the look on purpose opens this one and takes it over.
  const [kept, seen] = [join(root, "tests/web/page.png"), join(root, "build/page.png")];
  writeFileSync(seen, await game.picture());
  const { stderr } = spawnSync("compare", ["-metric", "AE", "-fuzz", "10%", kept, seen, "null:"], { encoding: "utf8" });
  assert.ok(Number(stderr) < 50, `${stderr} pixels differ`);
});

test("messages are answered by pointer, key and touch, and move", async t => {
  const game = await open(t, { size: { ...notebook, hasTouch: true } });
  const before = await game.click("frmTessel.lblEnde").sees("frmMsgJa");
  await game.drag("frmMsgJa.lblName", 60, 40);
  await game.until(left => byId("frmMsgJa").getBoundingClientRect().x > left, before.x + 40);
  await game.drag("frmMsgJa.lblName", 5000, 5000).until(() => byId("frmMsgJa").getBoundingClientRect().bottom <= innerHeight);
  await game.press("Escape").gone("frmMsgJa").click("frmTessel.lblEnde");
  await game.page.touchscreen.tap(...await game.middle("frmMsgJa.lblNein"));
  await game.gone("frmMsgJa").click("frmTessel.lblEnde").click("frmMsgJa.lblJa").says("Das Spiel ist beendet.");
  assert.equal(await game.run(() => document.querySelector("h1").textContent), "Malvone");
  await game.press("Enter").starts();  // the button has the focus
});

test("a finger takes where it is lifted; two zoom, a long one tells; a pen that does not hover is a finger", async t => {
  const game = await open(t, { size: phone });
  const devices = await game.page.createCDPSession();
  const touch = async id => game.page.touchscreen.touchStart(...await game.middle(id));
  const tap = async id => (await touch(id)).end();
  const held = await touch("frmTessel.lblNeu");
  await game.until(() => byId("tip").textContent === "Neues Spiel beginnen" && !byId("tip").hidden);
  await held.end();
  await tap("frmTessel.lblNeu");
  const stone = await game.has("frmTessel.Image4", "ariaLabel", "Level: 1").group();
  for (const finger of [await touch(stone), await touch("frmTessel.imgFeld(140)")]) await finger.end();
  const slid = await touch(stone);
  await slid.move(20, 300);
  await slid.end();
  const [x, y] = await game.middle(stone);
  await devices.send("Input.synthesizePinchGesture", { x, y, scaleFactor: 2 });
  assert.ok(await game.run(() => visualViewport.scale > 1.5));
  assert.equal(await game.run(() => byId("frmTessel.lblSumme").textContent), "");
  await devices.send("Input.synthesizePinchGesture", { x, y, scaleFactor: 0.2 });
  const pen = { x, y, pointerType: "pen", button: "left", buttons: 1, clickCount: 1 };
  for (const type of ["mousePressed", "mouseReleased"]) await devices.send("Input.dispatchMouseEvent", { type, ...pen });
  await game.reads("frmTessel.lblSumme", "ergibt").has("frmTessel.Image3", "ariaLabel", "Punkte: 0");
  await tap(stone);
  await game.until(() => byId("frmTessel.Image3").ariaLabel !== "Punkte: 0");
});

test("arrow keys play, and a screen reader hears what is seen", async t => {
  const game = await open(t, { prepare: page => page.emulateMediaFeatures([{ name: "prefers-reduced-motion", value: "reduce" }]) });
  assert.equal(await game.run(() => page.timers["frmTessel.Timer1"]), undefined);
  const stone = Number(/\d+/.exec(await game.begin().group())) - 1;
  await game.press(...Array(1 + Math.floor(stone / 10)).fill("ArrowRight"), ...Array(9 - stone % 10).fill("ArrowUp"));
  assert.equal(await game.focused(), `frmTessel.imgFeld(${stone + 1})`);
  assert.match(await game.run(() => document.activeElement.getAttribute("aria-description")), /^Dieser Spielzug ergibt \d+ Punkte!$/);
  await game.press("Enter").reads("news", "Steine entfernt");
  while (await game.focused() !== "frmTessel.lblEnde") await game.press("Tab");
  await game.press("Enter").sees("frmMsgJa");
  const message = JSON.stringify(await game.page.accessibility.snapshot());
  assert.match(message, /"alertdialog".*"name":"Malvone Vers.: .*"description":"[^"]*beenden/);
  assert.match(message, /"button"[^}]*"name":"Ja"/);
  assert.doesNotMatch(message, /Spalte/);
  assert.equal(await game.press("n").gone("frmMsgJa").focused(), "frmTessel.lblEnde");
  const board = JSON.stringify(await game.page.accessibility.snapshot());
  for (const part of ["menubar", '"name":"Punkte: ', '"name":"Neues Spiel"', '"name":"Spalte 14, Reihe 10, ']) assert.ok(board.includes(part), part);
});

test("the menu opens, switches and closes", async t => {
  const game = await open(t);
  assert.equal(await game.press("Tab").focused(), "frmTessel.mnuTesselMenu");
  await game.click("frmTessel.mnuTesselMenu").opens("frmTessel.mnuTesselMenu").point("frmTessel.mnuOptionen").opens("frmTessel.mnuOptionen");
  await game.point("frmTessel.mnuSound").opens("frmTessel.mnuOptionen", "frmTessel.mnuSound").click("frmTessel.mnuSoundaus").opens();
  const choices = await game.run(() => [...document.querySelectorAll("[role=menuitemradio]")].map(entry => entry.textContent + entry.ariaChecked));
  assert.deepEqual(choices, ["anfalse", "austrue"]);
  await game.click("frmTessel.mnuMenuInfo").press("End");
  assert.equal(await game.run(() => document.activeElement.textContent), "Beste Spieler...");
  await game.click("frmTessel.mnuMenuInfo").opens();
});

test("a storage that is full, cleared or forbidden gives the game's own messages", async t => {
  const full = await open(t, { entries: { "C:\\lindenspiele\\": "", [list]: "" } });
  await full.run(() => {
    for (let size = 1 << 22; size >= 1; size >>= 1) attempt(() => { for (let i = 0; ; ++i) localStorage[`x${size}.${i}`] = "x".repeat(size); });
  });
  await full.click("frmTessel.lblNeu").reads("frmMsgOk", "»tessel.ini«").press("Escape").run(() => localStorage.clear());
  await full.press("Enter").reads("frmMsgOk", "»tessel.ini«");
  await full.press("Escape", "Enter").until(() => localStorage["C:\\lindenspiele\\tessel.ini"]);  // told once, and saved from then on
  await full.gone("frmMsgOk").press("Alt+i", "ArrowUp", "Enter").reads("frmMsgOk", "konnten nicht gelesen werden");
  const profile = folder();
  mkdirSync(join(profile, "Default"));
  writeFileSync(join(profile, "Default/Preferences"), '{"profile":{"default_content_setting_values":{"cookies":2}}}');
  const forbidden = await open(t, { engine: await chromium({ userDataDir: profile }), started: false, own: false });
  await forbidden.reads("frmMsgOk", "Festplatte").press("Escape").begin();
});

test("one page of a browser has the game; another takes it over or waits for it", async t => {
  const first = await open(t);
  const page = await first.context.newPage();
  const second = player({ run: (what, ...given) => page.evaluate(what, ...given) });
  await page.goto(server.address);
  await second.says("schon in einem anderen");
  await page.click("button");
  await second.starts();
  await first.says("läuft jetzt in einem anderen").go(server.address).says("schon in einem anderen");
  await page.close();
  await first.starts();
});

test("only the program's own fault ends the game", async t => {
  const game = await open(t);
  await game.run(() => { Promise.reject(new Error("somebody else's")); }).begin();
  await game.run(() => page.push(5, "")).says("fehlt oder ist beschädigt");  // no kind of event
  assert.equal(game.told.splice(0).length, 2);
});

test("the first picture is the game's, and is seen before the program is there", async t => {
  let hold;
  const held = new Promise(resolve => { hold = resolve; });
  const prepare = async page => {
    await page.setRequestInterception(true);
    page.on("request", request => (request.url().includes("malvone.js") ? hold(request) : request.continue()));
  };
  const game = await open(t, { started: false, size: { width: 1111, height: 777 }, prepare });
  const boxes = (...names) => game.run(all => all.map(name => document.querySelector(name).getBoundingClientRect().toJSON()), names);
  await game.until(() => document.querySelector("#first svg")).says("Klicken Sie auf »Neues Spiel«");
  const before = await boxes("#first .Window", "#first .PictureBox");
  // What is clicked there is kept: a new game.
  await game.page.mouse.click(before[0].x + 0.14 * before[0].width, before[0].y + 0.8 * before[0].height);
  (await held).continue();
  await game.starts().has("frmTessel.Image4", "ariaLabel", "Level: 1");
  assert.deepEqual(await boxes("#frmTessel", "#frmTessel .PictureBox"), before);
  await game.gone("first");
});

test("without scripts, and from a folder, the page says what it needs", async t => {
  await (await open(t, { started: false, prepare: page => page.setJavaScriptEnabled(false) })).says("braucht JavaScript");
  const local = await open(t, { started: false, address: `file://${built}/index.html` });
  await local.says("nur von einem Webserver");
  local.told.splice(0);
});

// Width, height and ratio of screens, from walls to telephones that are held upright.
const screens = [
  [1280, 720, 1], [1920, 950, 1], [1280, 720, 1.5], [1366, 625, 1], [1280, 720, 2], [1242, 568, 1.1], [1440, 780, 2],
  [1024, 768, 1], [1180, 820, 2], [800, 600, 1.25], [768, 1024, 2], [2560, 1300, 1], [3440, 1300, 1], [844, 390, 3],
  [667, 375, 2], [568, 320, 2], [820, 1180, 2], [412, 732, 2.625], [375, 553, 2], [390, 664, 3],
];
test("the game is as large as the screen allows, and sharp", async t => {
  const game = await open(t);
  for (const screen of screens) await game.fits(...screen);
  assert.ok(await game.run(() => {  // on the last one, a telephone, text is larger than designed
    const [words, offer] = ["lblMeldung", "imgWiederholen"].map(name => byId(`frmTessel.${name}`));
    words.textContent = "»Nächster Level« oder »Wiederholen«.";
    offer.hidden = false;
    const text = document.createRange();
    text.selectNodeContents(words);
    return text.getBoundingClientRect().right <= offer.getBoundingClientRect().left;
  }));
});

test("after one visit the game needs no network, and a new version plays from the next start on", async t => {
  const served = folder();
  cpSync(built, served, { recursive: true });
  const { address, stop } = await serve(served);
  const game = await open(t, { address });
  const [mark] = /(?<="malvone-)\w+/.exec(readFileSync(join(served, "worker.js"), "utf8"));
  await game.run(() => navigator.serviceWorker.ready.then(() => true));
  for (const name of ["index.html", "worker.js"]) {
    const text = readFileSync(join(served, name), "utf8");
    writeFileSync(join(served, name), text.replaceAll(mark, "next").replace("<body", '<body class="next"'));
  }
  await game.go(address).until(() => caches.keys().then(names => names.join() === "malvone-next"));
  stop();
  for (const name of ["", "index.html", "?utm_source=x"]) {
    await game.go(address + name).starts();
    assert.equal(await game.run(() => document.body.className + new URL(document.querySelector("[src]").src).search), "next?next");
  }
  for (const name of ["WHOOSH.WAV", "Malvone.pdf"]) assert.ok(await game.run(file => fetch(file).then(({ ok }) => ok), name), name);
});

test("no sound plays before the first gesture, each at once, a new one cuts the old; a manual opens beside the game", async t => {
  const prepare = page => page.evaluateOnNewDocument(() => {
    globalThis.heard = [];
    const hear = (prototype, name, what) => {
      const own = prototype[name];
      prototype[name] = function () {
        own.call(this);
        heard.push(what(this));
      };
    };
    hear(AudioBufferSourceNode.prototype, "start", ({ buffer }) => Math.round(buffer.duration * 100));
    hear(AudioNode.prototype, "disconnect", () => "cut");
  });
  const game = await open(t, { prepare });
  const [chimes, whoosh] = ["CHIMES", "WHOOSH"].map(name => Math.round((readFileSync(join(built, `${name}.WAV`)).length - 44) / 2 / 441));
  const hears = (...sounds) => game.until(text => heard.join() === text, sounds.join());
  await hears();
  await game.click("frmTessel.lblEnde");
  await hears(chimes);
  await game.press("Escape").click("frmTessel.lblNeu").take();
  await hears(chimes, "cut", whoosh);
  const opened = game.context.waitForTarget(target => target.url().endsWith("/Malvone.pdf"));
  await game.click("frmTessel.lblHilfe");
  await opened;
});
