// page.test.mjs: the real page in real browsers. Whatever Chromium writes to its console fails the
// test that it comes in.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { cpSync, mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, symlinkSync, utimesSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, test } from "node:test";
import { atEnd, chromium, end, firefox, webkit } from "./engines.mjs";

const root = new URL("../..", import.meta.url).pathname;
const built = join(root, "build/web");
const limit = { timeout: 60_000 };
const phone = { width: 390, height: 664, deviceScaleFactor: 3, hasTouch: true, isMobile: true };
const list = "C:\\lindenspiele\\malvone.txt";

after(end);
for (const signal of ["SIGTERM", "SIGINT"]) process.on(signal, () => end().finally(() => process.exit(1)));

const folder = () => {
  const made = mkdtempSync(join(tmpdir(), "malvone-"));
  atEnd(() => rmSync(made, { recursive: true, force: true, maxRetries: 5 }));
  return made;
};
const serve = async served => {
  const server = spawn(join(root, "tools/serve.py"), [served, "0"], { stdio: ["ignore", "pipe", "inherit"] });
  atEnd(() => server.kill());
  const line = await new Promise(resolve => server.stdout.once("data", resolve));
  return { address: /http\S+/.exec(line)[0], stop: () => server.kill() };
};
const server = await serve(built);
const shared = await chromium();

// What a player does and sees, in any engine.
const actions = tab => {
  const until = async (what, ...given) => {
    for (const last = Date.now() + limit.timeout; Date.now() < last; await new Promise(done => setTimeout(done, 20))) {
      const found = await tab.run(what, ...given).catch(() => null);  // the page may just be changing
      if (found) return found;
    }
    throw new Error(`${what} has not come true with ${given} on: ${await tab.run(() => document.body.innerText)}`);
  };
  const game = {
    until,
    sees: id => until(name => {
      const element = document.getElementById(name);
      return element?.getClientRects().length && element.getBoundingClientRect().toJSON();
    }, id),
    starts: () => until(() => start.plays && !start.over),
    gone: id => until(name => !document.getElementById(name), id),
    reads: (id, words) => until((name, text) => document.getElementById(name)?.textContent.includes(text), id, words),
    says: words => until(text => document.body.textContent.includes(text), words),
    name: id => tab.run(of => document.getElementById(of).ariaLabel, id),
    named: (id, words) => until((name, text) => document.getElementById(name)?.ariaLabel === text, id, words),
    holds: (id, text) => until((name, value) => document.getElementById(name).value === value, id, text),
    entry: name => tab.run(key => localStorage[key], name),
    middle: async id => {
      const box = await game.sees(id);
      return [box.x + box.width / 2, box.y + box.height / 2];
    },
    // A pointer that already is there has to move all the same.
    point: async id => {
      const [x, y] = await game.middle(id);
      for (const way of [1, 0]) await tab.mouse("move", x + way, y);
    },
    click: async id => {
      await game.point(id);
      await tab.mouse("down");
      await tab.mouse("up");
    },
    // It fills the page, as far as its shape can, and its edges lie on whole device pixels.
    fits: async (width, height, ratio = 1) => {
      await tab.resize(width, height, ratio);
      await until((...size) => {
        const { offsetWidth, offsetHeight } = document.getElementById("frmHintergrund");
        return String(size) === String([offsetWidth, offsetHeight]);
      }, width, height);
      const [window, cell, bar] = await Promise.all(["frmTessel", "frmTessel.imgFeld(1)", "frmTessel.mnuTesselMenu"].map(game.sees));
      const text = `${width} x ${height} at ${ratio}`;
      for (const length of [window.left, window.top, window.width, cell.left, cell.top, cell.width, cell.height]) {
        assert.ok(Math.abs(length * ratio - Math.round(length * ratio)) < 0.05, `${text}: ${length}`);
      }
      assert.ok(window.left >= 0 && window.top >= 0 && window.right <= width && window.bottom <= height, text);
      const upright = 3 * height > 4 * width;
      const possible = upright ? height : Math.min(width * 487 / 755, height);
      assert.ok(window.height >= 0.95 * possible || (upright && window.width >= 0.95 * width), `${text}: ${window.width} x ${window.height}`);
      assert.ok(cell.width >= 20 && bar.height >= 24, text);
    },
    board: () => tab.run(() => [...document.querySelectorAll('[id^="frmTessel.imgFeld("]')].slice(0, 140).map(cell => cell.ariaLabel.split(", ")[2])),
    // A stone with a neighbour of its colour below or to the right, or nothing.
    group: async () => {
      const cells = await game.board();
      const stone = cells.findIndex((colour, i) => colour !== "leer" &&
        ((i % 10 < 9 && cells[i + 1] === colour) || cells[i + 10] === colour));
      return stone < 0 ? null : `frmTessel.imgFeld(${stone + 1})`;
    },
    begin: async () => {
      await game.click("frmTessel.lblNeu");
      await game.named("frmTessel.Image4", "Level: 1");
    },
    // Until the message at its end.
    playLevel: async () => {
      for (let stone = await game.group(); stone; stone = await game.group()) {
        await game.click(stone);
        if (await tab.run(() => document.getElementById("frmMsgOk"))) return;
      }
    },
  };
  return { ...tab, ...game };
};

// A game in a tab of its own. `entries` lie in the storage before it starts.
const open = async (t, { engine = shared, address = server.address, entries = {}, size = { width: 1280, height: 720 }, started = true, ...given } = {}) => {
  const tab = await engine.tab({ size, ...given });
  t.after(async () => {
    await tab.close();
    assert.deepEqual(tab.told ?? [], []);
  });
  const game = actions(tab);
  await tab.go(address);
  if (started) await game.starts();
  if (Object.keys(entries).length) {
    await tab.run(all => void Object.assign(localStorage, all), entries);
    await tab.go(address);
    await game.starts();
  }
  await tab.run(() => { Date.now = () => 1; });  // chance draws the same boards in every run
  return game;
};

test("the server compresses, names what never changes, and refuses what is no name", async () => {
  const answer = (path, headers = {}) => fetch(server.address + path, { headers });
  for (const path of ["%00", "%zz", "%ff"]) assert.equal((await answer(path)).status, 400, path);
  assert.equal((await answer("..%2f..%2fetc/passwd")).status, 404);
  const page = await answer("", { "Accept-Encoding": "gzip" });
  assert.equal(page.headers.get("Content-Encoding"), "gzip");
  assert.equal(page.headers.get("Cache-Control"), "no-cache");
  assert.match((await answer("page.js?mark")).headers.get("Cache-Control"), /immutable/);
  assert.equal((await answer("", { "If-None-Match": page.headers.get("ETag") })).status, 304);
});

// Copies of the page that each have one file that is not as it was built.
const damage = {
  missing: () => null,
  empty: () => "",
  cut: bytes => bytes.subarray(0, bytes.length / 2),
  wrong: () => "<!doctype html><title>404</title>",
};
const damaged = () => {
  const copies = folder();
  for (const file of ["malvone.css", "page.js", "pictures.css", "malvone.js", "malvone.wasm", "index.html"]) {
    for (const [how, spoil] of Object.entries(damage).filter(([kind]) => file !== "index.html" || kind === "cut")) {
      mkdirSync(join(copies, `${file}-${how}`));
      for (const name of readdirSync(built)) {
        const copy = join(copies, `${file}-${how}`, name);
        const spoilt = name === file ? spoil(readFileSync(join(built, name))) : undefined;
        if (spoilt === undefined) symlinkSync(join(built, name), copy);
        else if (spoilt !== null) writeFileSync(copy, spoilt);
      }
    }
  }
  return copies;
};
const copies = damaged();

for (const [name, engine] of Object.entries({ chromium: async () => shared, firefox, webkit })) {
  test(`${name} plays a level, takes an entry, keeps it, and tells of every damaged file`, async t => {
    const low = "Niemand\r\n".repeat(5) + "5\r\n4\r\n3\r\n2\r\n1\r\n";
    const game = await open(t, { engine: await engine(), entries: { "C:\\lindenspiele\\": "", [list]: low } });
    await game.begin();
    const stone = await game.group();
    await game.point(stone);
    await game.reads("frmTessel.lblSumme", "Dieser Spielzug ergibt");
    const worth = /\d+/.exec(await game.run(() => document.getElementById("frmTessel.lblSumme").textContent))[0];
    await game.click(stone);
    await game.named("frmTessel.Image3", `Punkte: ${worth}`);
    await game.click("frmTessel.lblEnde");
    await game.sees("frmMsgJa");
    await game.press("Escape");
    await game.gone("frmMsgJa");
    for (let level = 2; level <= 5; ++level) await game.press("Enter");
    await game.playLevel();
    await game.named("frmTessel.Image4", "Level: 5");
    await game.click("frmMsgOk.lblOk");
    await game.reads("frmMsgJa", "eine neue Bestmarke");
    await game.press("KeyJ");
    await game.holds("frmBeste.txtSpieler(0)", "Spieler");
    await game.type("Jörg Müßig, €");
    await game.holds("frmBeste.txtSpieler(0)", "Jörg Müßig, €");
    await game.click("frmBeste.cmdEnde");
    await game.sees("frmMsgJa");
    assert.match(await game.entry(list), /^J\xf6rg M\xfc\xdfig, \x80\r\nNiemand\r\n/);
    await game.go(server.address);
    for (const size of [[1000, 700], [1500, 800], [600, 950]]) await game.fits(...size);
    const { address } = await serve(copies);
    for (const [i, copy] of readdirSync(copies).entries()) {
      if (name !== "chromium" && i % 5 !== 0) continue;  // each file once, and each kind of damage
      await game.go(`${address}${copy}/`);
      await game.says("Eine seiner Dateien fehlt oder ist beschädigt");
      assert.deepEqual(await game.run(() => document.activeElement.textContent), "Noch einmal beginnen", copy);
      assert.equal(await game.run(() => navigator.locks.query().then(({ held }) => held.length)), 0, copy);
    }
    game.told?.splice(0);  // Chromium tells of the damaged files, as it should
  });
}

test("messages are answered by pointer, key and touch, and move", async t => {
  const game = await open(t, { size: { width: 1280, height: 720, hasTouch: true } });
  await game.click("frmTessel.lblEnde");
  const before = await game.sees("frmMsgJa");
  const [x, y] = await game.middle("frmMsgJa.lblName");
  await game.point("frmMsgJa.lblName");
  await game.mouse("down");
  for (const way of [0.5, 1]) await game.mouse("move", x + 60 * way, y + 40 * way);
  await game.mouse("up");
  await game.until(left => document.getElementById("frmMsgJa").getBoundingClientRect().x > left, before.x + 40);
  assert.equal(await game.run(() => getComputedStyle(document.getElementById("frmMsgJa"), "::before").content), "none");
  await game.point("frmMsgJa.lblName");
  await game.mouse("down");
  for (const way of [10, 5000]) await game.mouse("move", way, way);
  await game.mouse("up");
  await game.until(() => document.getElementById("frmMsgJa").getBoundingClientRect().bottom <= innerHeight);
  await game.press("Escape");
  await game.gone("frmMsgJa");
  await game.click("frmTessel.lblEnde");
  await game.page.touchscreen.tap(...await game.middle("frmMsgJa.lblNein"));
  await game.gone("frmMsgJa");
  await game.click("frmTessel.lblEnde");
  await game.click("frmMsgJa.lblJa");
  await game.says("Das Spiel ist beendet.");
  assert.equal(await game.run(() => document.querySelector("h1").textContent), "Malvone");
  await game.press("Enter");  // the button has the focus
  await game.starts();
});

test("a finger takes where it is lifted; two zoom, a long one tells, on a telephone held upright too", async t => {
  const game = await open(t, { size: phone });
  const touch = async id => game.page.touchscreen.touchStart(...await game.middle(id));
  const lift = async (...fingers) => { for (const finger of fingers) await finger.end(); };
  const tap = async id => lift(await touch(id));
  const held = await touch("frmTessel.lblNeu");
  await game.until(() => document.getElementById("tip").textContent === "Neues Spiel beginnen" && !document.getElementById("tip").hidden);
  await lift(held);
  await tap("frmTessel.lblNeu");
  await game.named("frmTessel.Image4", "Level: 1");
  const stone = await game.group();
  await lift(await touch(stone), await touch("frmTessel.imgFeld(140)"));
  const slid = await touch(stone);
  await slid.move(20, 300);
  await lift(slid);
  const [x, y] = await game.middle(stone);
  await (await game.page.createCDPSession()).send("Input.synthesizePinchGesture", { x, y, scaleFactor: 2 });
  assert.ok(await game.run(() => visualViewport.scale > 1.5));
  assert.equal(await game.run(() => document.getElementById("frmTessel.lblSumme").textContent), "");
  await (await game.page.createCDPSession()).send("Input.synthesizePinchGesture", { x, y, scaleFactor: 0.2 });
  await tap(stone);
  await game.reads("frmTessel.lblSumme", "ergibt");
  assert.equal(await game.name("frmTessel.Image3"), "Punkte: 0");
  await tap(stone);
  await game.until(() => document.getElementById("frmTessel.Image3").ariaLabel !== "Punkte: 0");
});

test("a pen that does not hover is a finger", async t => {
  const game = await open(t);
  await game.begin();
  const pen = await game.page.createCDPSession();
  const [x, y] = await game.middle(await game.group());
  for (const type of ["mousePressed", "mouseReleased"]) {
    await pen.send("Input.dispatchMouseEvent", { type, x, y, pointerType: "pen", button: "left", buttons: 1, clickCount: 1 });
  }
  await game.reads("frmTessel.lblSumme", "ergibt");
  assert.equal(await game.name("frmTessel.Image3"), "Punkte: 0");
});

test("the game is played and an entry made by keyboard alone", async t => {
  const low = "Niemand\r\n".repeat(5) + "5\r\n4\r\n3\r\n2\r\n1\r\n";
  const game = await open(t, { entries: { "C:\\lindenspiele\\": "", [list]: low } });
  await game.press("Alt+KeyS");
  await game.sees("frmTessel.mnuTessel(1)");
  await game.press("Enter");
  await game.reads("news", "Neues Spiel.");
  for (let level = 2; level <= 5; ++level) await game.press("Enter");
  await game.playLevel();
  await game.named("frmTessel.Image4", "Level: 5");
  await game.press("Escape");
  await game.reads("frmMsgJa", "eine neue Bestmarke");
  await game.press("KeyJ");
  const box = "frmBeste.txtSpieler(0)";
  await game.holds(box, "Spieler");
  await game.page.keyboard.sendCharacter("中文");  // as a paste does: it comes at once
  await game.press("Alt+KeyA");
  await game.holds(box, "Spieler");
  await game.press("Escape");  // what is being typed is not thrown away
  await game.page.keyboard.sendCharacter("Jo\u0308rg 中Mu\u0308ßig");
  await game.holds(box, "Jörg Müßig");
  await game.press("Tab");
  while (await game.run(() => document.activeElement.id !== "frmBeste.cmdEnde")) await game.press("Tab");
  await game.press("Enter");
  await game.until(key => localStorage[key].includes("rg M"), list);
  await game.page.reload();
  await game.starts();
  await game.press("Alt+KeyI");
  await game.press("End");
  await game.press("Enter");
  await game.sees("frmBeste");
  await game.holds(box, "Jörg Müßig");
  await game.press("Escape");
  await game.gone("frmBeste");
});

test("arrow keys play, and a screen reader hears what is seen", async t => {
  const calm = [{ name: "prefers-reduced-motion", value: "reduce" }];
  const game = await open(t, { prepare: page => page.emulateMediaFeatures(calm) });
  assert.equal(await game.run(() => page.timers["frmTessel.Timer1"]), undefined);
  await game.begin();
  const focus = () => game.run(() => document.activeElement.id);
  const stone = Number(/\d+/.exec(await game.group())) - 1;
  for (let i = 0; i < 1 + Math.floor(stone / 10); ++i) await game.press("ArrowRight");
  for (let i = 9; i > stone % 10; --i) await game.press("ArrowUp");
  assert.equal(await focus(), `frmTessel.imgFeld(${stone + 1})`);
  assert.match(await game.run(() => document.activeElement.getAttribute("aria-description")), /^Dieser Spielzug ergibt \d+ Punkte!$/);
  await game.press("Enter");
  await game.reads("news", "Steine entfernt");
  while (await focus() !== "frmTessel.lblEnde") await game.press("Tab");
  await game.press("Enter");
  await game.sees("frmMsgJa");
  const tree = JSON.stringify(await game.page.accessibility.snapshot());
  assert.match(tree, /"alertdialog".*"name":"Malvone Vers.: .*"description":"[^"]*beenden/);
  assert.match(tree, /"button"[^}]*"name":"Ja"/);
  assert.doesNotMatch(tree, /Spalte/);
  await game.press("KeyN");
  await game.gone("frmMsgJa");
  assert.equal(await focus(), "frmTessel.lblEnde");
  const board = JSON.stringify(await game.page.accessibility.snapshot());
  for (const part of ["menubar", '"name":"Punkte: ', '"name":"Neues Spiel"', '"name":"Spalte 14, Reihe 10, ']) assert.ok(board.includes(part), part);
});

test("the menu opens, switches and closes", async t => {
  const game = await open(t);
  const shows = (...ids) => game.until(all => [...document.querySelectorAll("[aria-expanded=true]")].map(e => e.id).join() === all, ids.join());
  await game.press("Tab");
  assert.equal(await game.run(() => document.activeElement.id), "frmTessel.mnuTesselMenu");
  await game.click("frmTessel.mnuTesselMenu");
  await shows("frmTessel.mnuTesselMenu");
  await game.point("frmTessel.mnuOptionen");
  await shows("frmTessel.mnuOptionen");
  await game.point("frmTessel.mnuSound");
  await shows("frmTessel.mnuOptionen", "frmTessel.mnuSound");
  await game.click("frmTessel.mnuSoundaus");
  await shows();
  const roles = await game.run(() => [...document.querySelectorAll("[role=menuitemradio]")].map(entry => entry.textContent + entry.ariaChecked));
  assert.deepEqual(roles, ["anfalse", "austrue"]);
  await game.click("frmTessel.mnuMenuInfo");
  await game.press("End");
  assert.equal(await game.run(() => document.activeElement.textContent), "Beste Spieler...");
  await game.click("frmTessel.mnuMenuInfo");
  await shows();
});

test("a storage that is full, cleared or forbidden gives the game's own messages", async t => {
  const full = await open(t, { entries: { "C:\\lindenspiele\\": "", [list]: "" } });
  await full.run(() => {
    for (let size = 1 << 22; size >= 1; size >>= 1) {
      try {
        for (let i = 0; ; ++i) localStorage[`x${size}.${i}`] = "x".repeat(size);
      } catch { /* full for this size */ }
    }
  });
  await full.click("frmTessel.lblNeu");
  await full.reads("frmMsgOk", "»tessel.ini«");
  await full.press("Escape");
  await full.run(() => localStorage.clear());
  await full.press("Enter");
  await full.reads("frmMsgOk", "»tessel.ini«");
  await full.press("Escape");
  await full.press("Enter");  // told once, and saved from then on
  await full.until(() => localStorage["C:\\lindenspiele\\tessel.ini"]);
  assert.equal(await full.run(() => document.getElementById("frmMsgOk")), null);
  for (const key of ["Alt+KeyI", "ArrowUp", "Enter"]) await full.press(key);
  await full.reads("frmMsgOk", "konnten nicht gelesen werden");
  const profile = folder();
  mkdirSync(join(profile, "Default"));
  writeFileSync(join(profile, "Default/Preferences"), '{"profile":{"default_content_setting_values":{"cookies":2}}}');
  const forbidden = await open(t, { engine: await chromium({ userDataDir: profile }), started: false, own: false });
  await forbidden.reads("frmMsgOk", "Festplatte");
  await forbidden.press("Escape");
  await forbidden.begin();
});

test("one page of a browser has the game; another takes it over or waits for it", async t => {
  const first = await open(t);
  const page = await first.context.newPage();
  const second = actions({ run: (what, ...given) => page.evaluate(what, ...given) });
  await page.goto(server.address);
  await second.says("schon in einem anderen");
  await page.click("button");
  await second.starts();
  await first.says("läuft jetzt in einem anderen");
  await first.page.reload();
  await first.says("schon in einem anderen");
  await page.close();
  await first.starts();
});

test("only the program's own fault ends the game", async t => {
  const game = await open(t);
  await game.run(() => { Promise.reject(new Error("somebody else's")); });
  await game.begin();
  await game.run(() => page.push(5, ""));  // no kind of event
  await game.says("fehlt oder ist beschädigt");
  assert.equal(game.told.splice(0).length, 2);
});

test("the first picture is the game's, and is seen before the program is there", limit, async t => {
  let hold;
  const held = new Promise(resolve => { hold = resolve; });
  const game = await open(t, {
    started: false, size: { width: 1111, height: 777 }, prepare: async page => {
      await page.setRequestInterception(true);
      page.on("request", request => (request.url().includes("malvone.js") ? hold(request) : request.continue()));
    },
  });
  const boxes = (...names) => game.run(all => all.map(name => document.querySelector(name).getBoundingClientRect().toJSON()), names);
  await game.until(() => document.querySelector("#first svg"));
  const before = await boxes("#first .Window", "#first .PictureBox");
  assert.match(await game.run(() => document.querySelector("#first").innerText), /Klicken Sie auf »Neues Spiel«/);
  // What is clicked there is kept: a new game.
  await game.page.mouse.click(before[0].x + 0.14 * before[0].width, before[0].y + 0.8 * before[0].height);
  (await held).continue();
  await game.starts();
  await game.named("frmTessel.Image4", "Level: 1");
  assert.deepEqual(await boxes("#frmTessel", "#frmTessel .PictureBox"), before);
  assert.equal(await game.run(() => document.querySelector("#first")), null);
});

test("without scripts, and from a folder, the page says what it needs", async t => {
  const silent = await open(t, { started: false, prepare: page => page.setJavaScriptEnabled(false) });
  await silent.says("braucht JavaScript");
  const page = await shared.browser.newPage();
  await page.goto(`file://${built}/index.html`);
  await actions({ run: (what, ...given) => page.evaluate(what, ...given) }).says("nur von einem Webserver");
  await page.close();
});

// Width, height and ratio of screens, from walls to telephones that are held upright.
const screens = [
  [1280, 720, 1], [1920, 950, 1], [1280, 720, 1.5], [1366, 625, 1], [1280, 720, 2], [1242, 568, 1.1], [1440, 780, 2],
  [1024, 768, 1], [1180, 820, 2], [800, 600, 1.25], [768, 1024, 2], [2560, 1300, 1], [3440, 1300, 1], [844, 390, 3],
  [667, 375, 2], [568, 320, 2], [820, 1180, 2], [412, 732, 2.625], [390, 664, 3], [375, 553, 2],
];
test("the game is as large as the screen allows, and sharp", async t => {
  const game = await open(t);
  for (const screen of screens) await game.fits(...screen);
});

test("after one visit the game needs no network", async t => {
  const own = await serve(built);
  const game = await open(t, { address: own.address });
  await game.run(() => navigator.serviceWorker.ready.then(() => true));
  own.stop();
  for (const name of ["", "index.html", "?utm_source=x"]) {
    await game.go(own.address + name);
    await game.starts();
  }
  for (const name of ["WHOOSH.WAV", "Malvone.pdf"]) assert.ok(await game.run(file => fetch(file).then(({ ok }) => ok), name), name);
});

test("a new version plays from the next start on", async t => {
  const served = folder();
  cpSync(built, served, { recursive: true });
  // A browser keeps an old file for long where the server does not say how long.
  utimesSync(join(served, "index.html"), 1, 1);
  const game = await open(t, { address: (await serve(served)).address });
  const only = name => game.until(kept => caches.keys().then(names => names.join() === kept), name);
  const [, mark] = /const build = "malvone-(\w+)"/.exec(readFileSync(join(served, "worker.js"), "utf8"));
  await game.run(() => navigator.serviceWorker.ready.then(() => true));
  await only(`malvone-${mark}`);
  for (const name of ["index.html", "worker.js"]) {
    const text = readFileSync(join(served, name), "utf8");
    writeFileSync(join(served, name), text.replaceAll(mark, "next").replace("<body", '<body class="next"'));
  }
  await game.page.reload();
  await only("malvone-next");
  await game.page.reload();
  await game.starts();
  assert.equal(await game.run(() => document.body.className), "next");
  assert.ok(await game.run(() => document.querySelector("[src]").src.endsWith("?next")));
});

test("no sound plays before the first gesture, each at once, a new one cuts the old; a manual opens beside the game", async t => {
  const game = await open(t, {
    prepare: page => page.evaluateOnNewDocument(() => {
      globalThis.heard = [];
      const { start: play } = AudioBufferSourceNode.prototype;
      const { disconnect } = AudioNode.prototype;
      AudioBufferSourceNode.prototype.start = function () {
        play.call(this);
        heard.push(Math.round(this.buffer.duration * 100));
      };
      AudioNode.prototype.disconnect = function () {
        disconnect.call(this);
        heard.push("cut");
      };
    }),
  });
  const lasts = name => Math.round((readFileSync(join(built, name)).length - 44) / 2 / 441);
  const hears = (...sounds) => game.until(text => heard.join() === text, sounds.join());
  await hears();
  await game.click("frmTessel.lblEnde");
  await hears(lasts("CHIMES.WAV"));
  await game.press("Escape");
  await game.click("frmTessel.lblNeu");
  await game.click(await game.group());
  await hears(lasts("CHIMES.WAV"), "cut", lasts("WHOOSH.WAV"));
  const opened = game.context.waitForTarget(target => target.url().endsWith("/Malvone.pdf"), limit);
  await game.click("frmTessel.lblHilfe");
  await opened;
});
