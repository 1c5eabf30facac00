// page.js: the page's side of the binding: elements, the event queue, storage and sound. It decides
// nothing: what an event means is up to the program.

const byId = id => document.getElementById(id);
const screenBox = byId("screen");
const { src, dataset: given } = document.currentScript;
const make = (tag, parent, properties) => {
  const element = Object.assign(document.createElement(tag), properties);
  parent.append(element);
  return element;
};
const attempt = (what, otherwise) => {
  try { return what(); } catch (fault) { return otherwise?.(fault); }
};

var page = {
  // Makes an element of each kind. Controls lie in the client area of their window, below its bar;
  // those without a name are hidden from screen readers.
  make(kind, id, inside) {
    if (kind === "Separator") return make("div", menu.list(inside), { id, className: kind });
    if (kind === "MenuEntry") {
      const list = menu.list(inside);
      const first = list.role === "menubar" && !list.firstChild;
      return make("button", list, { id, className: kind, tabIndex: first ? 0 : -1, onclick: ({ target }) => menu.choose(target) });
    }
    if (kind !== "Window") {
      const tag = kind === "TextBox" ? "input" : "div";
      return make(tag, inside.client, { id, className: kind, ariaHidden: "true", autocomplete: "off", spellcheck: false });
    }
    const element = make("div", inside, { id, className: kind, tabIndex: -1, opener: document.activeElement });
    element.client = make("div", element, { className: "Client" });
    make("button", element, { className: "Close", textContent: "×", ariaLabel: "Schließen", onclick: () => page.push("close", id) });
    return element;
  },
  // Properties of the next element to be put, by name.
  told: {},
  put(id, kind, inside) {
    const element = byId(id) ?? page.make(kind, id, byId(inside));
    for (const [name, value] of Object.entries(page.told)) {
      // Typing changes an input without the program.
      if (element.told?.[name] === value && element.localName !== "input") continue;
      if (name.startsWith("--")) element.style.setProperty(name, value);
      else if (name in element) element[name] = value;
      else if (value) element.setAttribute(name, value);
      else element.removeAttribute(name);
    }
    element.told = { ...element.told, ...page.told };
    page.told = {};
  },
  // Only the first drawing is large enough to be split into steps.
  pause: () => new Promise(done => (start.plays ? done() : setTimeout(done))),
  remove(id) {
    page.back = byId(id)?.opener;
    byId(id)?.remove();
    page.focused = null;
  },
  // Focuses the text box being typed into, what the arrow keys lead to, or the topmost window. A
  // window that comes back to the front gives the focus to what had it before.
  focus(id) {
    if (page.focused === id) return;
    page.focused = id;
    (byId(id).contains(page.back) ? page.back : byId(id)).focus({ preventScroll: true });
    page.back = null;
  },
  say(text) { byId("news").textContent = text; },

  length: name => start.lengths[name],

  // Each event belongs to a window or to one of its controls. Of several moves in a row only the
  // last counts.
  queue: [],
  push(kind, id, more) {
    if (start.over) return;
    const same = page.queue.at(-1)?.kind === kind && page.queue.at(-1).id === id;
    if (same && kind === "timer") return;
    if (same && kind === "move") page.queue.pop();
    const [window, control = ""] = id.split(".");
    page.queue.push({ kind, id, window, control, x: 0, y: 0, button: 0, shift: 0, ...more });
    page.wake?.();
  },
  async nextEvent(gameRuns) {
    if (!start.plays) page.shown();
    page.gameRuns = gameRuns;
    if (!page.queue.length) await new Promise(wake => { page.wake = wake; });
    return page.queue.shift();
  },
  // The program shows its first picture: time to load what it did not need until then.
  shown() {
    start.plays = true;
    byId("first").remove();
    page.say("");
    for (const name of given.beside.match(/\S+\.wav/gi)) {
      page.waves[name] = fetch(name).then(answer => answer.arrayBuffer()).catch(() => null);
    }
    navigator.serviceWorker?.register("worker.js").catch(() => {});
  },
  // The only timer makes an arrow blink. With reduced motion it stands still.
  timers: {},
  timer(id, interval) {
    clearInterval(page.timers[id]);
    const calm = matchMedia("(prefers-reduced-motion: reduce)").matches;
    if (interval && !calm) page.timers[id] = setInterval(page.push, interval, "timer", id);
  },

  // Browsers play nothing before the first gesture; sounds until then are dropped.
  waves: {},
  decoded: {},
  unmute() {
    if (navigator.userActivation?.isActive === false || !globalThis.AudioContext) return;
    page.speaker ??= new AudioContext();
    page.speaker.resume();
  },
  async sound(path) {
    page.playing?.disconnect();
    if (!path || !page.speaker) return;
    const playing = page.playing = new AudioBufferSourceNode(page.speaker);
    const name = path.slice(3);
    page.decoded[name] ??= page.waves[name]?.then(bytes => page.speaker.decodeAudioData(bytes)).catch(() => null);
    playing.buffer = await page.decoded[name];
    if (playing !== page.playing) return;
    playing.connect(page.speaker.destination);
    playing.start();
  },
  open: path => window.open(path.slice(3), "_blank", "noopener"),

  // Files are entries of the browser's storage; those in the program's folder last as long as the
  // page. The numbers are the program's file faults. An entry that has changed since it was read is
  // not overwritten: where the browser has no locks, another page may have written it.
  beside: Object.fromEntries(given.beside.split(" ").map(name => ["P:\\" + name, ""])),
  known: {},
  entries: name => (name.startsWith("P:") ? page.beside : localStorage),
  folderExists: name => /^(.:)?\\[^\\]*$/.test(name) || page.readEntry(name.slice(0, name.lastIndexOf("\\") + 1)) !== undefined,
  storageAllowed: () => attempt(() => Boolean(localStorage), () => false),
  readEntry: name => attempt(() => page.known[name] = page.entries(name)[name]),
  writeEntry(name, content) {
    const [noPermission, otherDevice] = [70, 57];
    return attempt(() => {
      const entries = page.entries(name);
      if (entries[name] !== undefined && entries[name] !== page.known[name]) return noPermission;
      if (!start.over) page.known[name] = entries[name] = content;
      return 0;
    }, fault => (fault.name === "SecurityError" ? noPermission : otherDevice));
  },
  removeEntry: name => attempt(() => start.over || delete page.entries(name)[name]),
  end: () => start.tell("Das Spiel ist beendet."),
};

// The list of an entry is open while the focus is in it, or when a pointer or a key has opened it.
// The program only hears which entry was chosen.
const menu = {
  bar: () => screenBox.querySelector("[role=menubar]"),
  isOpen: () => menu.bar()?.querySelector("[aria-expanded=true]"),
  // The list of an entry, or the menu bar of a window, which comes first in the tab order.
  list(owner) {
    if (!owner.list && owner.client) owner.prepend(owner.list = make("div", owner, { role: "menubar" }));
    if (!owner.list) owner.after(owner.list = make("div", owner, { role: "menu", owner }));
    if (!owner.client) Object.assign(owner, { ariaHasPopup: "menu", ariaExpanded: "false" });
    return owner.list;
  },
  entries: list => [...list?.children ?? []].filter(entry => entry.matches("button:enabled:not([hidden])")),
  go(entry, open) {
    for (const owner of screenBox.querySelectorAll("[aria-haspopup]")) {
      owner.ariaExpanded = String(owner.list.contains(entry) || Boolean(open && owner === entry));
    }
    entry?.focus({ preventScroll: true });
  },
  leave() { if (menu.bar()?.contains(document.activeElement)) menu.go(menu.bar().parentElement); },
  choose(entry) {
    if (entry.list) return menu.go(entry === menu.isOpen() ? entry : menu.entries(entry.list)[0]);
    menu.leave();
    return page.push("menu", entry.id);
  },
  // Handles a key in the menu. Returns false if it is not the menu's.
  key(event) {
    const here = document.activeElement;
    const bar = menu.bar();
    if (!bar?.contains(here)) return false;
    const list = here.parentElement;
    const inBar = list === bar;
    const [all, below, tops] = [list, here.list, bar].map(menu.entries);
    const step = (entries, from, by) => entries[(entries.indexOf(from) + by + entries.length) % entries.length];
    const top = tops.find(entry => entry === here || entry.list.contains(here));
    const to = {
      ArrowDown: () => (inBar ? below[0] : step(all, here, 1)),
      ArrowUp: () => (inBar ? below.at(-1) : step(all, here, -1)),
      ArrowRight: () => (!inBar && below[0]) || step(tops, top, 1),
      ArrowLeft: () => (inBar || list.owner === top ? step(tops, top, -1) : list.owner),
      Home: () => all[0],
      End: () => all.at(-1),
      Escape: () => (inBar ? bar.parentElement : list.owner),
    }[event.key];
    const letter = all.find(entry => entry.dataset.letter === event.key.toUpperCase());
    if (to) menu.go(to(), menu.isOpen() && event.key.startsWith("Arrow"));
    else if (letter) menu.choose(letter);
    else return event.key !== "Tab" && event.key.length === 1;
    event.preventDefault();
    return true;
  },
};
const withKeys = keys => screenBox.querySelector(`[aria-keyshortcuts="${CSS.escape(keys)}"]`);
page.openMenu = keys => { if (withKeys(keys)?.list) menu.choose(withKeys(keys)); };

const shiftOf = event => event.shiftKey * 1 + event.ctrlKey * 2 + event.altKey * 4;
const send = (kind, event, window) => {
  // The upright layout may have moved what lies there.
  const style = getComputedStyle(document.elementFromPoint(event.clientX, event.clientY) ?? screenBox);
  const [across, down] = ["x", "y"].map(axis => Number(style.getPropertyValue(`--shift-${axis}`)));
  const lost = kind === "cancel";
  page.push(lost ? "up" : kind, window.id || "frmTessel", {  // the first picture has no name
    x: lost ? -1e6 : event.clientX / start.twip - across,
    y: event.clientY / start.twip - down,
    button: kind === "move" ? event.buttons & 7 : [1, 4, 2][event.button] ?? 0,
    shift: shiftOf(event),
  });
};

// A finger acts when it is lifted where it came down. Until then it may become a zoom with a second
// finger, drag a message, or be held for the tip. A pen that does not hover is a finger.
const tip = text => Object.assign(byId("tip"), { textContent: text, hidden: !text });
const finger = {
  from: null,
  is: ({ pointerType }) => !finger.drags && (pointerType === "touch" || (pointerType === "pen" && !finger.penHovers)),
  cancel() {
    clearTimeout(finger.held);
    finger.from = null;
    tip("");
  },
  down(event) {
    const told = event.target.closest('[title]:not([title=""])');
    finger.from = event;
    finger.held = setTimeout(() => tip(told?.title ?? ""), 600);
  },
  move(event, window) {
    if (!finger.from || Math.hypot(event.clientX - finger.from.clientX, event.clientY - finger.from.clientY) < 10) return;
    finger.drags = !window.matches("[role=main], .first");
    if (finger.drags) send("down", finger.from, window);
    finger.cancel();
  },
  up(event, window) {
    if (finger.from && byId("tip").hidden) send("finger", event, window);
    finger.cancel();
  },
};
for (const kind of ["down", "move", "up", "cancel"]) {
  addEventListener(`pointer${kind}`, event => {
    finger.penHovers ||= event.pointerType === "pen" && !event.buttons && kind === "move";
    if (!event.isPrimary) return finger.cancel();
    const window = event.target.closest?.(".Window");
    if (!window || event.target.closest("[role=menubar], button, input")) return false;
    if (kind === "down") {
      menu.leave();
      window.setPointerCapture(event.pointerId);
    }
    if (finger.is(event)) return finger[kind](event, window);
    finger.drags &&= kind === "move";
    return send(kind, event, window);
  });
}
const on = (type, react, options) => screenBox.addEventListener(type, react, options);
// While a list is open, pointing at another entry opens that one.
on("pointerover", ({ target, pointerType }) => {
  if (target.matches(".MenuEntry") && pointerType === "mouse" && menu.isOpen()) menu.go(target, true);
});
on("focusin", event => { if (!menu.bar()?.contains(event.target)) menu.go(); });
// Clicks on the board leave the focus where it is.
on("mousedown", event => { if (!event.target.closest("input, button")) event.preventDefault(); });
on("contextmenu", event => event.preventDefault());
// A click without a pointer comes from a screen reader.
on("click", ({ target, detail }) => { if (target.matches("[role=button]") && detail === 0) page.push("press", target.id); });
for (const type of ["input", "compositionend", "focusin"]) {
  on(type, ({ target: box, isComposing }) => {
    if (box.localName !== "input" || box.readOnly || isComposing) return;
    const [text, before] = [box.value, box.value.slice(0, box.selectionStart)].map(part => part.normalize("NFC"));
    page.push(type === "focusin" ? "focus" : "text", box.id, { text, caret: [...before].length });
  });
}

addEventListener("keydown", event => {
  const here = document.activeElement;
  if (start.over || event.isComposing || event.metaKey || event.getModifierState("AltGraph") || menu.key(event)) return;
  const { key, ctrlKey, altKey, repeat } = event;
  const presses = key === "Enter" || key === " ";
  if (presses && here.matches("button")) return;
  if (presses && here.matches("[role=button]:not([data-highlight])")) {
    event.preventDefault();
    if (!repeat) page.push("press", here.id);
    return;
  }
  // The layer's key codes are the browser's keyCode. Enter takes what the arrow keys lead to, as
  // Delete does.
  const code = presses && here.dataset.highlight ? 46 : event.keyCode;
  const text = (ctrlKey ? "Control+" : altKey ? "Alt+" : "") + (code >= 65 && code <= 90 ? String.fromCharCode(code) : key);
  // A key that opens a text box must not type into it, and Alt with a letter types nothing.
  const types = key.length === 1 && !ctrlKey && !altKey && here.localName !== "input";
  if (types || withKeys(text) || (altKey && /^[a-z]$/i.test(key))) event.preventDefault();
  page.push("key", "", { code, shift: shiftOf(event), held: repeat, text });
});
for (const gesture of ["mousedown", "pointerup", "keydown"]) addEventListener(gesture, page.unmute, true);
addEventListener("resize", () => {
  start.fit();
  page.push("resize", "");
});
addEventListener("beforeunload", event => { if (page.gameRuns && !start.over) event.preventDefault(); });

// The game loads behind the picture that is part of the page. Each of its pictures is drawn once
// before a control shows it, in small steps: reading the computed style draws it.
const build = src.replace(/^[^?]*/, "");
const load = (tag, properties) => new Promise(onload => Object.assign(make(tag, document.head), { onload, ...properties }));
const stock = async ({ target }) => {
  for (const [i, { selectorText }] of [...target.sheet.cssRules].entries()) {
    const sample = make("i", byId("stock"));
    sample.dataset.picture = /data-picture="?([^"\]]+)|$/.exec(selectorText)[1];
    if (getComputedStyle(sample).backgroundImage && i % 4 === 3) await page.pause();
  }
};
const loadGame = () => Promise.all([
  WebAssembly.compileStreaming(fetch("malvone.wasm" + build)),
  load("link", { integrity: given.pictures, rel: "stylesheet", href: "pictures.css" + build }).then(stock),
  load("script", { integrity: given.program, src: "malvone.js" + build }),
]);

// Only one page of a browser runs the game, so that best lists never mix. The others wait for it, or
// take it over.
const begin = ([module]) => {
  const play = () => new Promise(release => {
    start.release = release;
    malvone({
      onAbort: () => start.fail(),
      instantiateWasm: (imports, ready) => (WebAssembly.instantiate(module, imports).then(ready), {}),
    });
  });
  const elsewhere = words => start.tell(words, "Hier weiterspielen", () => {
    history.replaceState("take over", "");
    location.reload();
  });
  const mode = history.state === "take over" ? { steal: true } : { ifAvailable: true };
  history.replaceState(null, "");
  if (!navigator.locks) return play();
  return navigator.locks.request("malvone", mode, free => {
    if (free) return play();
    elsewhere("Malvone ist schon in einem anderen Fenster oder Reiter geöffnet. Wird es dort beendet, beginnt es hier.");
    navigator.locks.request("malvone", () => location.reload());
    return null;
  }).catch(fault => (fault.name === "AbortError" ? elsewhere("Malvone läuft jetzt in einem anderen Fenster oder Reiter.")
    : play()));  // a browser that forbids storage forbids locks too
};

if (typeof WebAssembly !== "object") {
  start.tell("Dieser Browser kann das Spiel nicht ausführen: WebAssembly fehlt oder ist abgeschaltet.");
} else {
  // Hidden pages never paint.
  new Promise(painted => (document.hidden ? painted() : requestAnimationFrame(() => setTimeout(painted))))
    .then(loadGame).then(begin, () => start.fail());
}
