// page.js: the page's side of the binding: elements, the queue of events, storage and sound. It
// decides nothing; what an event means, the program says.

const byId = id => document.getElementById(id);
const screenBox = byId("screen");
const { src, dataset: given } = document.currentScript;

const make = (tag, className, parent, id = "") => {
  const element = document.createElement(tag);
  Object.assign(element, { id, className });
  parent.append(element);
  return element;
};

var page = {
  // Makes an element where there is none yet. Controls lie in the client area of their window, below
  // its bar.
  make(kind, id, inside) {
    const control = inside?.client && kind !== "Menu";
    const element = make({ MenuEntry: "button", TextBox: "input" }[kind] ?? "div", kind, control ? inside.client : inside, id);
    if (kind === "Window") {
      element.tabIndex = -1;
      element.opener = document.activeElement;
      element.client = make("div", "Client", element);
      const close = make("button", "Close", element);
      close.textContent = "×";
      close.setAttribute("aria-label", "Schließen");
      close.onclick = () => page.push({ kind: "close", target: id });
    } else if (kind === "Menu" && inside.client) {
      inside.prepend(element);  // the first that the Tab key leads to
    } else if (kind === "MenuEntry") {
      element.tabIndex = inside === menu.bar() && !element.previousSibling ? 0 : -1;
      element.onclick = () => menu.choose(element);
    } else if (control) {
      element.setAttribute("aria-hidden", "true");
      element.autocomplete = "off";
      element.spellcheck = false;
    }
    return element;
  },
  // What the program tells of an element before it puts it, by name.
  told: {},
  put(kind, id, inside) {
    const element = byId(id) ?? this.make(kind, id, byId(inside));
    const before = element.told;
    for (const [name, value] of Object.entries(this.told)) {
      // What is typed changes an input behind the program's back.
      if (before?.[name] === value && element.localName !== "input") continue;
      if (name.startsWith("--")) element.style.setProperty(name, value);
      else if (name in element) element[name] = value;
      else if (value) element.setAttribute(name, value);
      else element.removeAttribute(name);
    }
    element.told = { ...before, ...this.told };
    this.told = {};
  },
  // Later nothing is large enough to wait for.
  pause: () => new Promise(done => (start.plays ? done() : setTimeout(done))),
  remove(id) {
    this.back = byId(id)?.opener;
    byId(id)?.remove();
    this.focused = null;
  },
  // The text box that is typed into, what the arrow keys have led to, or the topmost window; in a
  // window that comes back, what had the focus before.
  focus(id) {
    if (this.focused === id) return;
    const goal = byId(id);
    (goal.contains(this.back) ? this.back : goal).focus({ preventScroll: true });
    this.focused = id;
    this.back = null;
  },
  say(text) { byId("news").textContent = text; },

  // The screen, the main window with its menu, and the height of a title or a menu, in twips.
  width: () => start.screen.width,
  height: () => start.screen.height,
  mainWidth: () => start.main.width,
  mainHeight: () => start.main.height,
  bar: () => start.bar,

  // Events. While somebody waits, the next one is taken at once.
  queue: [],
  push(event) {
    if (start.over) return;
    const last = this.queue.at(-1);
    if (last?.kind === event.kind && last.target === event.target) {
      if (event.kind === "move") this.queue.pop();  // only the latest place counts
      if (event.kind === "timer") return;
    }
    this.queue.push(event);
    this.wake?.();
  },
  async nextEvent(gameRuns) {
    if (!start.plays) this.shown();
    this.gameRuns = gameRuns;
    if (!this.queue.length) await new Promise(wake => { this.wake = wake; });
    this.wake = null;
    return { target: "", ...this.queue.shift() };
  },
  // The program has come to its first picture.
  shown() {
    start.plays = true;
    byId("first").remove();
    byId("news").textContent = "";
    this.fetchSounds();
    navigator.serviceWorker?.register("worker.js").catch(() => {});
  },
  // The one timer makes an arrow blink; who wants no motion is spared it.
  timers: {},
  timer(id, interval) {
    clearInterval(this.timers[id]);
    const calm = matchMedia("(prefers-reduced-motion: reduce)").matches;
    if (interval && !calm) this.timers[id] = setInterval(() => this.push({ kind: "timer", target: id }), interval);
  },

  // Sounds come once the game is there. Browsers play nothing before the first gesture; what the game
  // says until then is not said later.
  waves: {},
  fetchSounds() {
    for (const name of given.beside.match(/\S+\.wav/gi)) {
      this.waves[name] = fetch(name).then(answer => answer.arrayBuffer()).catch(() => null);
    }
  },
  unmute() {
    if (navigator.userActivation?.isActive === false || !globalThis.AudioContext) return;
    page.speaker ??= new AudioContext();
    page.speaker.resume();
  },
  async sound(name) {
    this.playing?.disconnect();
    if (!name || !this.speaker) return;
    const playing = this.playing = new AudioBufferSourceNode(this.speaker);
    const bytes = await this.waves[name];
    playing.buffer = await this.speaker.decodeAudioData(bytes?.slice()).catch(() => null);
    if (playing !== this.playing) return;
    playing.connect(this.speaker.destination);
    playing.start();
  },
  open(name) { window.open(name, "_blank", "noopener"); },

  // Files: entries of the browser's storage; what lies in the program's folder lives as long as the
  // page. Numbers are those of the program's file faults. A page that does not know what an entry
  // holds by now does not write it: where the browser has no locks, another page may have.
  beside: Object.fromEntries(given.beside.split(" ").map(name => ["P:\\" + name, ""])),
  known: {},
  entries(name) { return name.startsWith("P:") ? this.beside : localStorage; },
  storageAllowed() {
    try {
      return Boolean(localStorage);
    } catch {
      return false;
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
      this.known[name] = entries[name] = content;
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

  end() { start.tell("Das Spiel ist beendet."); },
};

// The list behind an entry is open while the focus is in it, or where a pointer or a key has led to
// the entry. The program hears what was chosen.
const menu = {
  bar: () => screenBox.querySelector("[role=menubar]"),
  isOpen: () => menu.bar()?.querySelector("[aria-expanded=true]"),
  entries: list => [...list.children].filter(entry => entry.matches("button:enabled:not([hidden])")),
  below: entry => (entry.hasAttribute("aria-haspopup") ? menu.entries(entry.nextSibling) : []),
  go(entry, open) {
    for (const owner of screenBox.querySelectorAll("[aria-haspopup]")) {
      const list = owner.nextSibling;
      list.hidden = !list.contains(entry) && !(open && owner === entry);
      owner.setAttribute("aria-expanded", !list.hidden);
      if (list.parentElement === menu.bar()) list.style.left = owner.offsetLeft + "px";
    }
    entry?.focus({ preventScroll: true });
  },
  leave() { if (menu.bar()?.contains(document.activeElement)) menu.go(menu.bar().parentElement); },
  choose(entry) {
    const first = menu.below(entry)[0];
    if (first && entry === menu.isOpen()) return menu.go(entry);
    if (first) return menu.go(first);
    menu.leave();
    return page.push({ kind: "menu", target: entry.id });
  },
  // What a key does in the menu; false: the focus is elsewhere.
  key(event) {
    const here = document.activeElement;
    const bar = menu.bar();
    if (!bar?.contains(here)) return false;
    const list = here.parentElement;
    const inBar = list === bar;
    const step = (entries, from, by) => entries[(entries.indexOf(from) + by + entries.length) % entries.length];
    const top = menu.entries(bar).find(e => e === here || e.nextSibling?.contains(here));
    const letter = menu.entries(list).find(e => e.dataset.letter === event.key.toUpperCase());
    const to = {
      ArrowDown: () => (inBar ? menu.below(here)[0] : step(menu.entries(list), here, 1)),
      ArrowUp: () => (inBar ? menu.below(here).at(-1) : step(menu.entries(list), here, -1)),
      ArrowRight: () => (!inBar && menu.below(here)[0]) || step(menu.entries(bar), top, 1),
      ArrowLeft: () => (inBar || list.previousSibling === top ? step(menu.entries(bar), top, -1)
        : list.previousSibling),
      Home: () => menu.entries(list)[0],
      End: () => menu.entries(list).at(-1),
      Escape: () => (inBar ? bar.parentElement : list.previousSibling),
    }[event.key];
    if (to) menu.go(to(), menu.isOpen() && event.key.startsWith("Arrow"));
    else if (letter) menu.choose(letter);
    else return event.key !== "Tab" && event.key.length === 1;
    event.preventDefault();
    return true;
  },
};

const withKeys = keys => screenBox.querySelector(`[aria-keyshortcuts="${CSS.escape(keys)}"]`);
page.openMenu = keys => {
  const entry = withKeys(keys);
  if (entry?.parentElement === menu.bar()) menu.choose(entry);
};

const shiftOf = event => event.shiftKey * 1 + event.ctrlKey * 2 + event.altKey * 4;

// How far what lies there has been moved by the upright layout.
const shiftAt = ({ clientX, clientY }) => {
  const style = getComputedStyle(document.elementFromPoint(clientX, clientY) ?? screenBox);
  return ["x", "y"].map(axis => Number(style.getPropertyValue(`--shift-${axis}`)));
};
const send = (kind, event, window) => {
  const lost = kind === "cancel";
  const [across, down] = shiftAt(event);
  page.push({
    kind: lost ? "up" : kind,
    target: window.id || "frmTessel",  // the first picture has no name
    x: lost ? -1e6 : event.clientX / start.twip - across,
    y: event.clientY / start.twip - down,
    button: kind === "move" ? event.buttons & 7 : [1, 4, 2][event.button] ?? 0,
    shift: shiftOf(event),
  });
};

// A finger acts where it is lifted, if it came down there: until then it may zoom with a second one,
// drag a message, or stay for the tip. A pen that does not hover is a finger.
const finger = {
  from: null,
  drags: false,
  penHovers: false,
  is: ({ pointerType }) => pointerType === "touch" || (pointerType === "pen" && !finger.penHovers),
  forget() {
    clearTimeout(finger.held);
    finger.from = null;
    byId("tip").hidden = true;
  },
  down(event) {
    finger.from = event;
    finger.held = setTimeout(() => {
      byId("tip").textContent = event.target.closest('[title]:not([title=""])')?.title;
      byId("tip").hidden = !byId("tip").textContent;
    }, 600);
  },
  move(event, window) {
    if (!finger.from || Math.hypot(event.clientX - finger.from.clientX, event.clientY - finger.from.clientY) < 10) return;
    finger.drags = !window.matches("[role=main], .first");
    if (finger.drags) send("down", finger.from, window);
    finger.forget();
  },
  up(event, window) {
    if (finger.from && byId("tip").hidden) send("finger", event, window);
    finger.forget();
  },
  cancel: () => finger.forget(),
};
for (const kind of ["down", "move", "up", "cancel"]) {
  addEventListener(`pointer${kind}`, event => {
    if (event.pointerType === "pen" && kind === "move" && !event.buttons) finger.penHovers = true;
    if (!event.isPrimary) finger.forget();
    const window = event.target.closest?.(".Window");
    if (!window || event.target.closest("[role=menubar], button, input") || !event.isPrimary) return;
    if (kind === "down") {
      menu.leave();
      window.setPointerCapture(event.pointerId);
    }
    if (finger.is(event) && !finger.drags) return finger[kind](event, window);
    finger.drags &&= kind === "move";
    return send(kind, event, window);
  });
}
// While a list is open, pointing is enough.
screenBox.addEventListener("pointerover", ({ target, pointerType }) => {
  const entry = target.closest("[role^=menuitem]");
  if (entry && pointerType === "mouse" && menu.isOpen()) menu.go(entry, true);
});
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
    const upTo = end => box.value.slice(0, end).normalize("NFC");
    page.push({ kind: type === "focusin" ? "focus" : "text", target: box.id, text: upTo(Infinity),
      caret: [...upTo(box.selectionStart)].length });
  });
}

addEventListener("keydown", event => {
  const here = document.activeElement;
  if (start.over || event.isComposing || event.metaKey || event.getModifierState("AltGraph") || menu.key(event)) return;
  // The codes of the layer are the browser's old numbers for keys. What the arrow keys have led to
  // is taken as by Delete.
  let code = event.keyCode;
  if (event.key === "Enter" || event.key === " ") {
    if (here.matches("button")) return;
    if (here.dataset.highlight) {
      code = 46;
    } else if (here.matches("[role=button]")) {
      event.preventDefault();
      if (!event.repeat) page.push({ kind: "press", target: here.id });
      return;
    }
  }
  const text = (event.ctrlKey ? "Control+" : event.altKey ? "Alt+" : "") +
    (code >= 65 && code <= 90 ? String.fromCharCode(code) : event.key);
  // What a key opens, it must not type into; a letter with Alt is no letter.
  const letter = event.key.length === 1 && !event.ctrlKey && !event.altKey;
  if ((letter && here.localName !== "input") || withKeys(text) || (event.altKey && /^[a-z]$/i.test(event.key))) event.preventDefault();
  page.push({ kind: "key", code, shift: shiftOf(event), held: event.repeat, text });
});
for (const gesture of ["mousedown", "pointerup", "keydown"]) addEventListener(gesture, page.unmute, true);
addEventListener("resize", () => {
  start.fit();
  page.push({ kind: "resize" });
});
addEventListener("beforeunload", event => { if (page.gameRuns && !start.over) event.preventDefault(); });

// What the game needs comes while the picture that the page has come with is seen. Every picture is
// drawn once before a control shows it.
const build = src.replace(/^[^?]*/, "");
const load = (tag, properties) => new Promise(onload => Object.assign(make(tag, "", document.head), { onload, ...properties }));
const stock = async ({ target }) => {
  for (const { selectorText } of target.sheet.cssRules) {
    const picture = /data-picture="?([^"\]]+)/.exec(selectorText);
    if (!picture) continue;
    const sample = make("i", "", byId("stock"));
    sample.dataset.picture = picture[1];
    // Reading its style makes the browser read the picture now, not all of them in one go.
    if (getComputedStyle(sample).backgroundImage && byId("stock").children.length % 4 === 0) await page.pause();
  }
};
const loadGame = async () => {
  const [module] = await Promise.all([
    WebAssembly.compileStreaming(fetch("malvone.wasm" + build)),
    load("link", { integrity: given.pictures, rel: "stylesheet", href: "pictures.css" + build }).then(stock),
    load("script", { integrity: given.program, src: "malvone.js" + build }),
  ]);
  return module;
};

// One page of a browser has the game, so that lists never mix; the others wait for it or take it over.
const takeOver = () => {
  history.replaceState("take over", "");
  location.reload();
};
const begin = module => {
  const play = () => new Promise(release => {
    start.release = release;
    malvone({
      onAbort: () => start.fail(),
      instantiateWasm(imports, ready) {
        WebAssembly.instantiate(module, imports).then(ready);
        return {};
      },
    });
  });
  const elsewhere = words => start.tell(words, "Hier weiterspielen", takeOver);
  const mode = history.state === "take over" ? { steal: true } : { ifAvailable: true };
  history.replaceState(null, "");
  if (!navigator.locks) return play();
  return navigator.locks.request("malvone", mode, free => {
    if (free) return play();
    elsewhere("Malvone ist schon in einem anderen Fenster oder Reiter geöffnet. Wird es dort beendet, beginnt es hier.");
    navigator.locks.request("malvone", () => location.reload());
    return null;
  }).catch(fault => {
    if (fault.name !== "AbortError") return play();  // a browser that forbids the storage forbids locks too
    return elsewhere("Malvone läuft jetzt in einem anderen Fenster oder Reiter.");
  });
};

const run = () => loadGame().then(begin, () => start.fail());
if (typeof WebAssembly !== "object") {
  start.tell("Dieser Browser kann das Spiel nicht ausführen: WebAssembly fehlt oder ist abgeschaltet.");
} else if (document.hidden || !PerformanceObserver.supportedEntryTypes.includes("paint")) {
  run();  // a page that nobody sees paints nothing
} else {
  new PerformanceObserver((_, observer) => {
    observer.disconnect();
    run();
  }).observe({ type: "paint", buffered: true });
}
