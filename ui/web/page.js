// page.js: the page's side of the binding: elements, the queue of events, storage and sound. It
// decides nothing; what an event means, the program says.

const byId = id => document.getElementById(id);
const screenBox = byId("screen");
const twipsPerPixel = 15;
const cellPixels = 32;

const length = twips => `calc(${Number(twips)} * var(--u))`;
const colour = value => (value < 0 ? "transparent" : `rgb(${value & 255},${value >> 8 & 255},${value >> 16})`);
const setAttribute = (element, name, value) =>
  (value ? element.setAttribute(name, value) : element.removeAttribute(name));

// What each property of the program does to its element.
const effects = {
  left: (e, v) => { e.style.left = length(v); },
  top: (e, v) => { e.style.top = length(v); },
  width: (e, v) => { e.style.width = length(v); },
  height: (e, v) => { e.style.height = length(v); },
  above: (e, v) => { e.client.style.top = length(v); },
  level: (e, v) => { e.style.zIndex = v; },
  hidden: (e, v) => { e.hidden = v; },
  tip: (e, v) => setAttribute(e, "title", v),
  hand: (e, v) => e.toggleAttribute("data-hand", v),
  place: (e, v) => e.toggleAttribute("data-place", v),
  picture: (e, v) => { e.client.dataset.picture = v; },
  across: (e, v) => { e.client.style.backgroundSize = length(v * twipsPerPixel); },
  ground: (e, v) => { e.client.style.backgroundColor = colour(v); },
  text: (e, v) => { e.textContent = v.replaceAll("\r", ""); },
  font: (e, v) => { e.style.fontSize = length(v * 20); },
  bold: (e, v) => { e.style.fontWeight = v ? "bold" : "normal"; },
  colour: (e, v) => { e.style.color = colour(v); },
  centre: (e, v) => { e.style.textAlign = v ? "center" : "left"; },
  border: (e, v) => e.toggleAttribute("data-border", v),
  locked: (e, v) => { e.readOnly = v; },
  stop: (e, v) => { e.tabIndex = v ? 0 : -1; },
  value: (e, v) => { if (e.value !== v) e.value = v; },
  select: (e, v) => {
    const [start, count] = v.split(" ").map(Number);
    e.setSelectionRange(start, start + count);
  },
  said: e => e.removeAttribute("aria-hidden"),
  role: (e, v) => setAttribute(e, "role", v),
  name: (e, v) => setAttribute(e, "aria-label", v),
  title: (e, v) => { (e.caption ?? { set textContent(text) { document.title = text; } }).textContent = v; },
  caption: (e, v) => { e.firstChild.textContent = v.trim(); },
  shortcut: (e, v) => { e.lastChild.textContent = v.replace("Control", "Strg"); },
  keys: (e, v) => setAttribute(e, "aria-keyshortcuts", v),
  letter: (e, v) => { e.dataset.letter = v.slice(-1); },
  enabled: (e, v) => { e.disabled = !v; },
  checked: (e, v) => {
    setAttribute(e, "role", v ? "menuitemcheckbox" : "menuitem");
    setAttribute(e, "aria-checked", v && "true");
  },
};

const make = (tag, className, parent, id = "") => {
  const element = document.createElement(tag);
  Object.assign(element, { id, className, client: element, told: {} });
  parent.append(element);
  return element;
};

const makeWindow = (id, of) => {
  const element = make("div", "Window", screenBox, id);
  element.tabIndex = -1;
  element.client = make("div", "Client", element);
  setAttribute(element, "aria-hidden", !of.role && "true");
  if (of.above > 0 && of.role === "dialog") {
    const title = make("div", "Title", element);
    element.caption = make("span", "", title);
    const close = make("button", "", title);
    close.textContent = "×";
    setAttribute(close, "aria-label", "Schließen");
    close.onclick = () => page.push({ kind: "close", target: id });
  }
  return element;
};

const makeEntry = (id, of) => {
  const window = byId(id.split(".")[0]);
  const owner = byId(of.parent);
  let list = owner ? owner.nextSibling : window.querySelector("[role=menubar]");
  if (list?.localName !== "div") {
    list = make("div", "", window);
    list.setAttribute("role", owner ? "menu" : "menubar");
    list.hidden = Boolean(owner);
    owner?.after(list);
    owner?.setAttribute("aria-haspopup", "menu");
  }
  if (of.kind === "Separator") {
    const line = make("div", "", list, id);
    line.setAttribute("role", "separator");
    return line;
  }
  const entry = make("button", "", list, id);
  entry.tabIndex = owner || list.children.length > 1 ? -1 : 0;
  setAttribute(make("span", "", entry), "aria-hidden", "");
  setAttribute(make("kbd", "", entry), "aria-hidden", "true");
  entry.onclick = () => menu.choose(entry);
  return entry;
};

const makeControl = (id, of) => {
  const element = make(of.kind === "TextBox" ? "input" : "div", of.kind, byId(id.split(".")[0]).client, id);
  element.setAttribute("aria-hidden", "true");
  element.autocomplete = "off";
  element.spellcheck = false;
  return element;
};

const page = {
  put(id, described) {
    const of = Object.fromEntries(described.split("\x1e").map(property => property.split("\x1f")));
    const makers = { Window: makeWindow, MenuEntry: makeEntry, Separator: makeEntry };
    const element = byId(id) ?? (makers[of.kind] ?? makeControl)(id, of);
    for (const [name, value] of Object.entries(of)) {
      if (element.told[name] !== value || name === "value") {
        effects[name]?.(element, value);
        element.told[name] = value;
      }
    }
  },
  // The windows from the lowest to the topmost; beside a modal one nothing can be reached.
  arrange(order, modal) {
    byId("first")?.remove();
    const names = order.split(" ");
    for (const window of [...screenBox.children]) {
      const level = names.indexOf(window.id);
      if (level < 0) window.remove();
      else Object.assign(window.style, { zIndex: level });
      window.inert = Boolean(modal) && window.id !== modal;
      setAttribute(window, "aria-modal", window.id === modal && "true");
    }
    if (this.modal !== modal) this.focused = undefined;
    this.modal = modal;
    const words = [...byId(modal)?.querySelectorAll(".Label:not([aria-hidden])") ?? []];
    if (words.length) byId(modal).setAttribute("aria-describedby", words.map(word => word.id).join(" "));
  },
  // The text box that is typed into, or the place of the arrow keys; else the topmost window.
  focus(id) {
    if (this.focused !== id) (byId(id) ?? byId(this.modal) ?? this.main()).focus({ preventScroll: true });
    this.focused = id;
  },
  main: () => screenBox.querySelector("[role=main]"),
  say(text) { byId("news").textContent = text; },

  // The screen: the designed size times the whole that fits, or less where not even once fits; then
  // cells are still whole pixels.
  twip: 1 / twipsPerPixel,
  width() { return innerWidth / this.twip; },
  height() { return innerHeight / this.twip; },
  fit(width, height) {
    this.design = [width, height];
    this.resize();
  },
  resize() {
    const [width, height] = this.design.map(twips => twips / twipsPerPixel);
    const room = Math.min(innerWidth / width, innerHeight / height);
    const cell = cellPixels * devicePixelRatio;
    this.twip = (room >= 1 ? Math.floor(room) : Math.floor(room * cell) / cell) / twipsPerPixel;
    document.documentElement.style.setProperty("--u", this.twip + "px");
  },

  // Events. While somebody waits, the next one is taken at once.
  queue: [],
  push(event) {
    const last = this.queue.at(-1);
    if (last?.kind === event.kind && last.target === event.target) {
      if (event.kind === "move") this.queue.pop();  // only the latest place counts
      if (event.kind === "timer") return;
    }
    this.queue.push(event);
    this.wake?.();
  },
  async nextEvent(gameRuns) {
    this.gameRuns = gameRuns;
    if (!this.queue.length) await new Promise(wake => { this.wake = wake; });
    this.wake = null;
    const { kind, target = "", numbers = [], text = "" } = this.queue.shift();
    return [kind, target, ...Array.from({ length: 5 }, (_, i) => numbers[i] ?? 0), text].join("\n");
  },
  timers: {},
  timer(id, interval) {
    clearInterval(this.timers[id]);
    if (interval) this.timers[id] = setInterval(() => this.push({ kind: "timer", target: id }), interval);
  },

  // Sounds and manuals are loaded when they are first needed; before the first gesture no browser
  // would play.
  audio: new Audio(),
  sound(name) {
    this.audio.pause();
    if (!name || navigator.userActivation?.hasBeenActive === false) return;
    this.audio.src = name;
    this.audio.play().catch(() => {});
  },
  open(name) { window.open(name, "_blank", "noopener"); },

  // Files: entries of the browser's storage; what lies in the program's folder lives as long as the
  // page. Numbers are those of the program's file faults. A page that does not know what an entry
  // holds by now does not write it: where the browser has no locks, another page may have.
  beside: Object.fromEntries(document.body.dataset.files.split(" ").map(name => ["P:\\" + name, ""])),
  known: {},
  entries(name) { return name.startsWith("P:") ? this.beside : localStorage; },
  storageAllowed() {
    try {
      return Number(Boolean(localStorage));
    } catch {
      return 0;
    }
  },
  readEntry(name) {
    try {
      return this.known[name] = this.entries(name)[name];
    } catch {
      return undefined;
    }
  },
  writeEntry(name, content) {
    const [noPermission, otherDevice] = [70, 57];
    try {
      const entries = this.entries(name);
      if (entries[name] !== undefined && entries[name] !== this.known[name]) return noPermission;
      entries[name] = content;
      this.known[name] = content;
      return 0;
    } catch (fault) {
      return fault.name === "SecurityError" ? noPermission : otherDevice;
    }
  },
  removeEntry(name) {
    try {
      delete this.entries(name)[name];
    } catch { /* nobody looks at the outcome */ }
  },

  // Sentences in the place of the game.
  notice(text) {
    this.over = true;
    byId("first")?.remove();
    this.release?.();
    screenBox.hidden = true;
    byId("notice").textContent = text;
    byId("notice").hidden = byId("again").hidden = false;
  },
  end() { this.notice("Das Spiel ist beendet."); },
  fail() {
    page.notice(typeof WebAssembly === "object"
      ? "Das Spiel kann nicht laufen: Eine seiner Dateien fehlt oder ist beschädigt."
      : "Dieser Browser kann das Spiel nicht ausführen: WebAssembly fehlt oder ist abgeschaltet.");
  },

  // One page of a browser has the game, so that lists never mix; the others wait for it.
  begin() {
    addRunDependency("the game");
    const own = () => new Promise(release => {
      page.release = release;
      byId("notice").hidden = true;
      removeRunDependency("the game");
    });
    if (!navigator.locks) return own();
    navigator.locks.request("malvone", { ifAvailable: true }, free => {
      if (free) return own();
      byId("first").remove();
      byId("notice").textContent = "Malvone ist schon in einem anderen Fenster oder Reiter geöffnet. " +
        "Wird es dort beendet, beginnt es hier.";
      navigator.locks.request("malvone", own);
      return null;
    }).catch(own);  // a browser that forbids the storage forbids locks too
  },
};

// The list below an entry is open while the focus is on it or in it. The program hears what was
// chosen.
const menu = {
  go(entry) {
    for (const list of screenBox.querySelectorAll("[role=menu]")) {
      const owner = list.previousSibling;
      list.hidden = !list.contains(entry) && owner !== entry;
      if (list.parentElement === this.bar()) list.style.left = owner.offsetLeft + "px";
    }
    entry?.focus({ preventScroll: true });
  },
  bar: () => screenBox.querySelector("[role=menubar]"),
  entries: list => [...list.children].filter(entry => entry.matches("button:enabled:not([hidden])")),
  below: entry => (entry.nextSibling?.matches("[role=menu]") ? menu.entries(entry.nextSibling) : []),
  leave() { if (this.bar()?.contains(document.activeElement)) this.go(page.main()); },
  choose(entry) {
    const first = this.below(entry)[0];
    if (first) return this.go(first);
    this.leave();
    return page.push({ kind: "menu", target: entry.id });
  },
  // What a key does in the menu; false: the focus is elsewhere.
  key(event) {
    const here = document.activeElement;
    if (!this.bar()?.contains(here)) return false;
    const list = here.parentElement;
    const inBar = list === this.bar();
    const step = (entries, from, by) => entries[(entries.indexOf(from) + by + entries.length) % entries.length];
    const top = this.entries(this.bar()).find(e => e === here || e.nextSibling?.contains(here));
    const letter = this.entries(list).find(e => e.dataset.letter === event.key.toUpperCase());
    const to = {
      ArrowDown: () => (inBar ? this.below(here)[0] : step(this.entries(list), here, 1)),
      ArrowUp: () => (inBar ? this.below(here).at(-1) : step(this.entries(list), here, -1)),
      ArrowRight: () => (!inBar && this.below(here)[0]) || step(this.entries(this.bar()), top, 1),
      ArrowLeft: () => (inBar || list.previousSibling === top ? step(this.entries(this.bar()), top, -1)
        : list.previousSibling),
      Escape: () => (inBar ? byId(this.bar().parentElement.id) : list.previousSibling),
    }[event.key];
    if (to) this.go(to());
    else if (letter) this.choose(letter);
    else return event.key !== "Tab" && event.key.length === 1;
    event.preventDefault();
    return true;
  },
};

page.openMenu = keys => {
  const entry = menu.bar()?.querySelector(`:scope > [aria-keyshortcuts="${CSS.escape(keys)}"]`);
  if (entry) menu.choose(entry);
};

const shiftOf = event => event.shiftKey * 1 + event.ctrlKey * 2 + event.altKey * 4;

for (const type of ["pointerdown", "pointermove", "pointerup", "pointercancel"]) {
  screenBox.addEventListener(type, event => {
    const window = event.target.closest(".Window");
    if (!window || event.target.closest("[role=menubar], button, input") || !event.isPrimary) return;
    if (type === "pointerdown") {
      menu.leave();
      window.setPointerCapture(event.pointerId);
    }
    const lost = type === "pointercancel";
    page.push({
      kind: lost ? "up" : type.slice("pointer".length),
      target: window.id,
      numbers: [lost ? -1e6 : event.clientX / page.twip, event.clientY / page.twip,
        type === "pointermove" ? event.buttons & 7 : [1, 4, 2][event.button] ?? 0, shiftOf(event),
        Number(event.pointerType === "touch")],
    });
  });
}
screenBox.addEventListener("focusin", event => { if (!menu.bar()?.contains(event.target)) menu.go(); });
// A pointer on the board leaves the focus where it is.
screenBox.addEventListener("mousedown", event => {
  if (!event.target.closest("input, button")) event.preventDefault();
});
screenBox.addEventListener("contextmenu", event => event.preventDefault());
// A click without a pointer comes from a screen reader.
screenBox.addEventListener("click", event => {
  const control = event.target.closest("[role=button]");
  if (control && event.detail === 0) page.push({ kind: "press", target: control.id });
});
for (const type of ["input", "compositionend", "focusin"]) {
  screenBox.addEventListener(type, event => {
    const box = event.target;
    if (box.localName !== "input" || box.readOnly || event.isComposing) return;
    page.push({ kind: type === "focusin" ? "focus" : "text", target: box.id, text: box.value,
      numbers: [[...box.value.slice(0, box.selectionStart)].length] });
  });
}

addEventListener("keydown", event => {
  const here = document.activeElement;
  if (page.over || event.isComposing || event.getModifierState("AltGraph") || menu.key(event)) return;
  if (event.key === "Enter" || event.key === " ") {
    if (here.matches("button")) return;
    if (here.matches("[role=button][tabindex='0']")) {
      event.preventDefault();
      if (!event.repeat) page.push({ kind: "press", target: here.id });
      return;
    }
  }
  // The codes of the layer are the browser's old numbers for keys.
  const code = event.keyCode;
  // What a key opens, it must not type into.
  const letter = event.key.length === 1 && !event.ctrlKey && !event.altKey && !event.metaKey;
  if (letter && here.localName !== "input") event.preventDefault();
  const name = (event.ctrlKey ? "Control+" : event.altKey ? "Alt+" : "") +
    (code >= 65 && code <= 90 ? String.fromCharCode(code) : event.key);
  if (screenBox.querySelector(`[aria-keyshortcuts="${CSS.escape(name)}"]`)) event.preventDefault();
  page.push({ kind: "key", numbers: [code, shiftOf(event), Number(event.repeat)], text: name });
});
addEventListener("resize", () => {
  if (page.design) page.resize();
  page.push({ kind: "resize" });
});
addEventListener("beforeunload", event => { if (page.gameRuns && !page.over) event.preventDefault(); });
addEventListener("unhandledrejection", () => page.fail());
byId("again").onclick = () => location.reload();

const build = document.currentScript.src.replace(/^[^?]*/, "");
var Module = { locateFile: name => name + build, onAbort: page.fail, preRun: [page.begin] };
if (!document.styleSheets.length) {
  page.fail();
  throw new Error("The style sheet is missing.");
}

// Every picture is ready before a control shows it.
const stockPictures = () => {
  for (const rule of document.styleSheets[0].cssRules) {
    const picture = /data-picture="?([^"\]]+)/.exec(rule.selectorText);
    if (picture) make("i", "", byId("stock")).dataset.picture = picture[1];
  }
};

// The picture that the page has come with is seen before anything else is done. A page that nobody
// sees has no frames.
const start = () => {
  const loader = make("script", "", document.head);
  loader.onerror = page.fail;
  loader.src = "malvone.js" + build;
  stockPictures();
  navigator.serviceWorker?.register("worker.js").catch(() => {});
};
const first = byId("first");
if (first) {
  page.fit(...first.dataset.size.split(" "));
  if (document.hidden) start();
  else requestAnimationFrame(() => setTimeout(start));
}
