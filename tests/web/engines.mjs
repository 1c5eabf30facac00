// engines.mjs: the three browser engines behind one small interface, for what is the same in all.
// A tab has go, run, mouse, type, press, resize and close.
import { spawn } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import puppeteer from "puppeteer-core";

const ends = [];
export const atEnd = step => ends.push(step);
export const end = async () => { for (const step of ends.splice(0).reverse()) await step(); };
// A folder for the time of the test.
export const folder = () => {
  const made = mkdtempSync(join(tmpdir(), "malvone-"));
  atEnd(() => rmSync(made, { recursive: true, force: true, maxRetries: 5 }));
  return made;
};

const puppet = async options => {
  const browser = await puppeteer.launch(options);
  atEnd(() => browser.close());
  return {
    browser,
    // `own`: with a storage of its own. `told` is what the page writes to its console.
    async tab({ size, prepare, own = true }) {
      const context = own ? await browser.createBrowserContext() : browser.defaultBrowserContext();
      const page = await context.newPage();
      const told = [];
      for (const kind of options.browser ? [] : ["console", "pageerror"]) page.on(kind, what => told.push(what.text?.() ?? String(what)));
      page.on("dialog", dialog => dialog.accept());
      await page.setViewport(size);
      await prepare?.(page);
      return {
        page, context, told,
        go: url => page.goto(url),
        run: (what, ...given) => page.evaluate(what, ...given),
        mouse: (kind, x, y) => (kind === "move" ? page.mouse.move(x, y) : page.mouse[kind]()),
        type: text => page.keyboard.type(text),
        async press(keys) {
          for (const key of keys.split("+")) await page.keyboard.down(key);
          for (const key of keys.split("+").reverse()) await page.keyboard.up(key);
        },
        resize: (width, height, deviceScaleFactor = 1) => page.setViewport({ width, height, deviceScaleFactor }),
        picture: () => page.screenshot(),
        close: () => (own ? context.close() : page.close()),
      };
    },
  };
};
export const chromium = (more = {}) => puppet({
  executablePath: "/usr/bin/chromium", args: ["--no-sandbox", "--autoplay-policy=user-gesture-required"], ...more,
});
export const firefox = () => puppet({ browser: "firefox", executablePath: "/usr/bin/firefox-esr" });

const keyCodes = { Enter: "\uE007", Escape: "\uE00C", Alt: "\uE00A", End: "\uE010" };
export const webkit = async () => {
  const env = { ...process.env, XDG_RUNTIME_DIR: folder(), WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS: "1" };
  const port = 20000 + process.pid % 20000;
  const driver = spawn("xvfb-run", ["-a", "-s", "-screen 0 2000x1400x24", "WebKitWebDriver", `--port=${port}`],
    { env, stdio: "ignore", detached: true });
  atEnd(() => process.kill(-driver.pid));
  const ask = async (method, path, body) => {
    const answer = await fetch(`http://127.0.0.1:${port}${path}`, { method, body: body && JSON.stringify(body) });
    const { value } = await answer.json();
    if (value?.error) throw new Error(`${value.error}: ${value.message}`);
    return value;
  };
  while (driver.exitCode === null && !await ask("GET", "/status").then(() => true, () => false)) await new Promise(done => setTimeout(done, 50));
  const options = { binary: "/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser", args: ["--automation"] };
  return {
    async tab({ size }) {
      const { sessionId } = await ask("POST", "/session", { capabilities: { alwaysMatch: { "webkitgtk:browserOptions": options } } });
      const tell = (method, what, body) => ask(method, `/session/${sessionId}/${what}`, body);
      const act = (type, ...actions) => tell("POST", "actions", { actions: [{ type, id: type, actions }] });
      const keys = (...all) => act("key", ...all.map(value => ({ type: "keyDown", value })), ...all.map(value => ({ type: "keyUp", value })));
      const tab = {
        go: url => tell("POST", "url", { url }),
        run: (what, ...args) => tell("POST", "execute/sync", { script: `return (${what})(...arguments)`, args }),
        mouse: (kind, x, y) => act("pointer", kind === "move" ? { type: "pointerMove", duration: 0, x: Math.round(x), y: Math.round(y) }
          : { type: kind === "down" ? "pointerDown" : "pointerUp", button: 0 }),
        type: async text => { for (const letter of text) await keys(letter); },
        press: names => keys(...names.split("+").map(name => keyCodes[name] ?? name)),
        // The window gets its size in its own time, and has a bar of its own above the page.
        async resize(width, height) {
          const settled = () => tab.run((...size) => String(size) === String([innerWidth, innerHeight]), width, height);
          for (const last = Date.now() + 30_000; !await settled();) {
            if (Date.now() > last) throw new Error(`The window does not become ${width} x ${height}.`);
            const bar = await tab.run(() => outerHeight - innerHeight);
            await tell("POST", "window/rect", { width, height: height + bar });
            for (let i = 0; i < 20 && !await settled(); ++i) await new Promise(done => setTimeout(done, 50));
          }
        },
        close: () => ask("DELETE", `/session/${sessionId}`),
      };
      await tab.resize(size.width, size.height);
      return tab;
    },
  };
};
