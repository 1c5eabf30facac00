// page.test.mjs: the real page in a real browser. Whatever the browser writes to its console fails
// the test that it comes in.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { cpSync, mkdirSync, mkdtempSync, readFileSync, rmSync, utimesSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, test } from "node:test";
import puppeteer from "puppeteer-core";

const root = new URL("../..", import.meta.url).pathname;
const limit = { timeout: 60_000 };
const desktop = { width: 1280, height: 720, deviceScaleFactor: 1 };
const phone = { width: 667, height: 375, deviceScaleFactor: 2, hasTouch: true, isMobile: true, isLandscape: true };
const list = "C:\\lindenspiele\\malvone.txt";

const ending = [];
const end = async () => {
  for (const step of ending.splice(0).reverse()) await step();
};
after(end);
for (const signal of ["SIGTERM", "SIGINT"]) process.on(signal, () => end().finally(() => process.exit(1)));

const built = join(root, "build/web");
const serve = async (folder = built) => {
  const server = spawn(join(root, "tools/serve.py"), [folder, "0"], { stdio: ["ignore", "pipe", "inherit"] });
  ending.push(() => server.kill());
  const line = await new Promise(resolve => server.stdout.once("data", resolve));
  return { address: /http\S+/.exec(line)[0], stop: () => server.kill() };
};
const launch = async (preferences = {}) => {
  const profile = mkdtempSync(join(tmpdir(), "malvone-"));
  mkdirSync(join(profile, "Default"));
  writeFileSync(join(profile, "Default/Preferences"), JSON.stringify(preferences));
  const browser = await puppeteer.launch({
    executablePath: "/usr/bin/chromium", userDataDir: profile, args: ["--no-sandbox", "--autoplay-policy=user-gesture-required"],
  });
  ending.push(async () => {
    await browser.close();
    rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
  });
  return browser;
};
const server = await serve();
const shared = await launch();

// A page of its own; `prepare` runs before the game starts.
const open = async (t, { browser, size = desktop, entries = {}, prepare, started = true } = {}) => {
  const context = browser ? browser.defaultBrowserContext() : await shared.createBrowserContext();
  const page = await context.newPage();
  const told = [];
  page.on("console", message => told.push(message.text()));
  page.on("pageerror", fault => told.push(String(fault)));
  page.on("dialog", dialog => dialog.accept());
  await page.setViewport(size);
  await page.evaluateOnNewDocument(given => {
    for (const [name, text] of Object.entries(given)) localStorage[name] ??= text;
  }, entries);
  await prepare?.(page);
  await page.goto(server.address);
  const game = { page, context, told, ...actions(page) };
  if (started) await game.sees("frmTessel");
  t.after(async () => {
    if (!browser) await context.close();
    assert.deepEqual(told, []);
  });
  return game;
};

const element = id => `[id="${id}"]`;
const actions = page => {
  const at = async id => {
    const box = await (await page.waitForSelector(element(id), { visible: true, ...limit })).boundingBox();
    return [box.x + box.width / 2, box.y + box.height / 2];
  };
  const game = {
    sees: id => page.waitForSelector(element(id), { visible: true, ...limit }),
    gone: id => page.waitForFunction(name => !document.getElementById(name), limit, id),
    reads: (id, words) => page.waitForFunction((name, text) => document.getElementById(name)?.textContent.includes(text), limit, id, words),
    name: id => page.$eval(element(id), e => e.ariaLabel),
    named: (id, words) => page.waitForFunction((name, text) => document.getElementById(name)?.ariaLabel === text, limit, id, words),
    click: async id => page.mouse.click(...await at(id)),
    point: async id => page.mouse.move(...await at(id)),
    tap: async id => page.touchscreen.tap(...await at(id)),
    press: async keys => {
      const all = keys.split("+");
      for (const key of all) await page.keyboard.down(key);
      for (const key of all.reverse()) await page.keyboard.up(key);
    },
    board: () => page.$$eval('[id^="frmTessel.imgFeld("]', cells => cells.slice(0, 140).map(c => c.ariaLabel.split(", ")[2])),
    entry: name => page.evaluate(key => localStorage[key], name),
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
      const cell = await (await game.sees("frmTessel.imgFeld(1)")).boundingBox();
      for (let stone = await game.group(); stone; stone = await game.group()) {
        const place = Number(/\d+/.exec(stone)) - 1;
        await page.mouse.click(cell.x + (Math.floor(place / 10) + 0.5) * cell.width, cell.y + (place % 10 + 0.5) * cell.height);
        if (await page.$(element("frmMsgOk"))) return;
      }
    },
  };
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

test("a level is played by pointer", async t => {
  const game = await open(t);
  await game.begin();
  const stone = await game.group();
  await game.point(stone);
  await game.reads("frmTessel.lblSumme", "Dieser Spielzug ergibt");
  const worth = Number(/\d+/.exec(await game.page.$eval(element("frmTessel.lblSumme"), e => e.textContent)));
  await game.click(stone);
  assert.equal(await game.name("frmTessel.Image3"), `Punkte: ${worth}`);
  await game.playLevel();
  await game.click("frmMsgOk.lblOk");
  await game.gone("frmMsgOk");
});

test("messages are answered by pointer, key and touch, and move", async t => {
  const game = await open(t, { size: { ...desktop, hasTouch: true } });
  const ask = () => game.click("frmTessel.lblEnde");
  await ask();
  const box = async id => (await game.sees(id)).boundingBox();
  const [before, title] = [await box("frmMsgJa"), await box("frmMsgJa.lblName")];
  await game.point("frmMsgJa.lblName");
  await game.page.mouse.down();
  await game.page.mouse.move(title.x + title.width / 2 + 60, title.y + 40, { steps: 4 });
  await game.page.mouse.up();
  assert.ok((await box("frmMsgJa")).x > before.x + 40);
  assert.equal(await game.page.$eval(element("frmMsgJa"), e => getComputedStyle(e, "::before").content), "none");
  await game.press("Escape");
  await game.gone("frmMsgJa");
  await ask();
  await game.tap("frmMsgJa.lblNein");
  await game.gone("frmMsgJa");
  await ask();
  await game.click("frmMsgJa.lblJa");
  await game.reads("notice", "Das Spiel ist beendet.");
  await game.click("again");
  await game.sees("frmTessel");
});

test("a finger points first and takes then", async t => {
  const game = await open(t, { size: phone });
  const all = await (await game.sees("frmTessel")).boundingBox();
  assert.ok(all.x >= 0 && all.y >= 0 && all.x + all.width <= phone.width && all.y + all.height <= phone.height);
  await game.tap("frmTessel.lblNeu");
  await game.named("frmTessel.Image4", "Level: 1");
  const stone = await game.group();
  await game.tap(stone);
  await game.reads("frmTessel.lblSumme", "ergibt");
  assert.equal(await game.name("frmTessel.Image3"), "Punkte: 0");
  await game.tap(stone);
  await game.page.waitForFunction(() => document.getElementById("frmTessel.Image3").ariaLabel !== "Punkte: 0", limit);
});

test("an entry is typed, kept as the file's bytes and found again by keyboard alone", async t => {
  const low = "Niemand\r\n".repeat(5) + "5\r\n4\r\n3\r\n2\r\n1\r\n";
  const game = await open(t, { entries: { "C:\\lindenspiele\\": "", [list]: low } });
  await game.press("Alt+KeyS");
  await game.press("Enter");
  for (let level = 2; level <= 5; ++level) await game.press("Enter");
  await game.playLevel();
  assert.equal(await game.name("frmTessel.Image4"), "Level: 5");
  await game.sees("frmMsgOk");
  await game.press("Escape");
  await game.reads("frmMsgJa", "eine neue Bestmarke");
  await game.press("KeyJ");
  await game.sees("frmBeste");
  const box = "frmBeste.txtSpieler(0)";
  const holds = name => game.page.waitForFunction((id, text) => document.getElementById(id).value === text, limit, box, name);
  const given = await game.page.$eval(element(box), e => e.value);
  await game.page.keyboard.sendCharacter("中文");  // as a paste does: it comes at once
  await holds(given);
  await game.page.keyboard.type("Jörg 中Müßig, €");
  await holds("Jörg Müßig, €");
  await game.press("Tab");
  while (await game.page.evaluate(() => document.activeElement.id !== "frmBeste.cmdEnde")) await game.press("Tab");
  await game.press("Enter");
  await game.page.waitForFunction(key => localStorage[key].includes("rg M"), limit, list);
  assert.match(await game.entry(list), /^J\xf6rg M\xfc\xdfig, \x80\r\nNiemand\r\n/);
  await game.page.reload();
  await game.sees("frmTessel");
  await game.press("Alt+KeyI");
  await game.press("ArrowUp");
  await game.press("Enter");
  await game.sees("frmBeste");
  assert.equal(await game.page.$eval(element("frmBeste.txtSpieler(0)"), e => e.value), "Jörg Müßig, €");
});

test("arrow keys play, and a screen reader hears what is seen", async t => {
  const game = await open(t);
  await game.click("frmTessel.lblNeu");
  const stone = Number(/\d+/.exec(await game.group())) - 1;
  for (let i = 0; i < 1 + Math.floor(stone / 10); ++i) await game.press("ArrowRight");
  for (let i = 9; i > stone % 10; --i) await game.press("ArrowUp");
  assert.equal(await game.page.evaluate(() => document.activeElement.id), `frmTessel.imgFeld(${stone + 1})`);
  await game.press("Delete");
  await game.reads("news", "Steine entfernt");
  await game.press("Control+KeyE");
  await game.sees("frmMsgJa");
  const tree = JSON.stringify(await game.page.accessibility.snapshot());
  assert.match(tree, /"alertdialog".*"name":"Malvone Vers.: .*"description":"[^"]*beenden/);
  assert.match(tree, /"button"[^}]*"name":"Ja"/);
  assert.doesNotMatch(tree, /Spalte/);
  await game.press("KeyN");
  await game.gone("frmMsgJa");
  const board = JSON.stringify(await game.page.accessibility.snapshot());
  for (const part of ["menubar", '"name":"Punkte: ', '"name":"Neues Spiel"', '"name":"Spalte 14, Reihe 10, ']) assert.ok(board.includes(part), part);
});

test("a storage that is full, cleared or forbidden gives the game's own messages", async t => {
  const full = await open(t, { entries: { "C:\\lindenspiele\\": "", [list]: "" } });
  await full.page.evaluate(() => {
    for (let size = 1 << 22; size >= 1; size >>= 1) {
      try {
        for (let i = 0; ; ++i) localStorage[`x${size}.${i}`] = "x".repeat(size);
      } catch { /* full for this size */ }
    }
  });
  await full.click("frmTessel.lblNeu");
  await full.reads("frmMsgOk", "»tessel.ini«");
  await full.press("Escape");
  await full.page.evaluate(() => localStorage.clear());
  for (const key of ["Alt+KeyI", "ArrowUp", "Enter"]) await full.press(key);
  await full.reads("frmMsgOk", "konnten nicht gelesen werden");
  const guarded = await launch({ profile: { default_content_setting_values: { cookies: 2 } } });
  const forbidden = await open(t, { browser: guarded, started: false });
  await forbidden.reads("frmMsgOk", "Festplatte");
  await forbidden.press("Escape");
  await forbidden.begin();
});

test("one page of a browser has the game", async t => {
  const first = await open(t);
  const second = await first.context.newPage();
  await second.goto(server.address);
  const other = actions(second);
  await other.reads("notice", "schon in einem anderen");
  await first.page.close();
  await other.sees("frmTessel");
});

// Requests for a part of the page go another way.
const divert = (part, way) => async page => {
  await page.setRequestInterception(true);
  page.on("request", request => (request.url().includes(part) ? way(request) : request.continue()));
};

test("the first picture is the game's, and is seen before the program is there", limit, async t => {
  let hold;
  const held = new Promise(resolve => { hold = resolve; });
  const game = await open(t, { started: false, prepare: divert("malvone.js", hold) });
  await game.page.waitForSelector("#first svg", { visible: true, ...limit });
  const box = async selector => (await (await game.page.waitForSelector(selector, { visible: true, ...limit })).boundingBox());
  const before = await box("#first .Window");
  const words = await game.page.$eval("#first .Window", e => e.innerText);
  assert.match(words, /Klicken Sie auf »Neues Spiel«/);
  (await held).continue();
  assert.deepEqual(await box(element("frmTessel")), before);
  assert.equal(await game.page.$("#first"), null);
});

test("bad luck is told in a sentence", async t => {
  for (const part of [".wasm", "malvone.js", "pictures.css", "malvone.css"]) {
    const game = await open(t, { started: false, prepare: divert(part, request => request.abort()) });
    await game.reads("notice", "Eine seiner Dateien fehlt");
    game.told.length = 0;  // the browser tells of the missing file, as it should
  }
  const silent = await open(t, { started: false, prepare: page => page.setJavaScriptEnabled(false) });
  await silent.page.waitForFunction(() => document.body.innerText.includes("braucht JavaScript"), limit);
});

// Width, height and ratio of screens, from walls to telephones that are held upright.
const screens = [
  [1280, 720, 1], [1920, 950, 1], [1280, 720, 1.5], [1366, 625, 1], [1280, 720, 2], [1242, 568, 1.1], [1440, 780, 2],
  [1024, 768, 1], [1180, 820, 2], [800, 600, 1.25], [768, 1024, 2], [2560, 1300, 1], [3440, 1300, 1], [844, 390, 3],
  [667, 375, 2], [568, 320, 2], [820, 1180, 2], [412, 732, 2.625], [390, 664, 3], [375, 553, 2],
];
test("the game is as large as the screen allows, and sharp", async t => {
  const { page } = await open(t);
  for (const [width, height, deviceScaleFactor] of screens) {
    await page.setViewport({ width, height, deviceScaleFactor });
    await page.waitForFunction(wide => document.getElementById("frmHintergrund").offsetWidth === wide, limit, width);
    const [window, cell, bar] = await page.evaluate(() => ["frmTessel", "frmTessel.imgFeld(1)", "frmTessel menu"]
      .map(id => document.getElementById(id).getBoundingClientRect().toJSON()));
    const text = `${width} x ${height} at ${deviceScaleFactor}`;
    for (const length of [window.left, window.top, window.width, cell.left, cell.top, cell.width, cell.height]) {
      assert.ok(Math.abs(length * deviceScaleFactor - Math.round(length * deviceScaleFactor)) < 0.05, `${text}: ${length}`);
    }
    assert.ok(window.left >= 0 && window.top >= 0 && window.right <= width && window.bottom <= height, text);
    const upright = 3 * height > 4 * width;
    const fits = upright ? 0.95 * height : 0.95 * Math.min(width * 487 / 755, height);
    assert.ok(window.height >= fits || (upright && window.width >= 0.95 * width), text);
    assert.ok(cell.width >= 20 && bar.height >= 24, text);
  }
});

test("after one visit the game needs no network", async t => {
  const own = await serve();
  const page = await (await shared.createBrowserContext()).newPage();
  await page.goto(own.address);
  await page.evaluate(() => navigator.serviceWorker.ready);
  await page.waitForFunction(() => caches.keys().then(names => names.length === 1), limit);
  own.stop();
  await page.reload();
  await actions(page).sees("frmTessel");
});

test("a new version plays from the next start on", async t => {
  const folder = mkdtempSync(join(tmpdir(), "malvone-"));
  ending.push(() => rmSync(folder, { recursive: true, force: true }));
  cpSync(built, folder, { recursive: true });
  // A browser keeps an old file for long where the server does not say how long.
  utimesSync(join(folder, "index.html"), 1, 1);
  const page = await (await shared.createBrowserContext()).newPage();
  const only = name => page.waitForFunction(kept => caches.keys().then(names => names.join() === kept), limit, name);
  await page.goto((await serve(folder)).address);
  const [, mark] = /const build = "malvone-(\w+)"/.exec(readFileSync(join(folder, "worker.js"), "utf8"));
  await page.evaluate(() => navigator.serviceWorker.ready);
  await only(`malvone-${mark}`);
  for (const name of ["index.html", "worker.js"]) {
    const text = readFileSync(join(folder, name), "utf8");
    writeFileSync(join(folder, name), text.replaceAll(mark, "next").replace("<body", '<body class="next"'));
  }
  await page.reload();
  await only("malvone-next");
  await page.reload();
  await actions(page).sees("frmTessel");
  assert.equal(await page.evaluate(() => document.body.className), "next");
  assert.ok(await page.evaluate(() => document.querySelector("[src]").src.endsWith("?next")));
});

test("no sound plays before the first gesture; a new one cuts the old one; a manual opens beside the game", async t => {
  const game = await open(t, {
    prepare: page => page.evaluateOnNewDocument(() => {
      // To the browser, this test's own questions are gestures too.
      Object.defineProperty(navigator, "userActivation", { value: { hasBeenActive: false } });
      addEventListener("pointerdown", () => { navigator.userActivation.hasBeenActive = true; }, true);
      const players = new Set();
      const { play } = HTMLMediaElement.prototype;
      globalThis.heard = [];
      globalThis.loud = () => [...players].filter(player => !player.paused).length;
      HTMLMediaElement.prototype.play = async function () {
        players.add(this);
        await play.call(this);
        heard.push(`${this.src.split("/").at(-1)} ${loud()}`);
      };
    }),
  });
  assert.deepEqual(await game.page.evaluate(() => heard), []);
  const hears = sound => game.page.waitForFunction(text => heard.at(-1) === text, limit, sound);
  await game.click("frmTessel.lblEnde");
  await hears("CHIMES.WAV 1");
  await game.press("Escape");
  await game.click("frmTessel.lblNeu");
  await game.click(await game.group());
  await hears("WHOOSH.WAV 1");
  const opened = game.context.waitForTarget(target => target.url().endsWith("/Malvone.pdf"), limit);
  await game.click("frmTessel.lblHilfe");
  await opened;
  await game.sees("frmTessel");
});
