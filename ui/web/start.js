// start.js: part of the page itself, so that it runs before any other file loads. Says how large the
// game is drawn, and tells the player if it cannot run.
const start = {
  // Width and height of the main window's client area in twips, across and upright. The upright
  // layout is for telephones; first-picture.mjs says where its parts lie.
  layouts: [[11325, 6945], [7125, 10480]],

  // Cells are whole device pixels at every size.
  fit() {
    const { clientWidth, clientHeight, style, classList } = document.documentElement;
    const whole = length => Math.floor(length * devicePixelRatio + 1e-6) / devicePixelRatio;
    // Title and menu stay high enough for a finger.
    const leastBar = whole(24 + 0.999 / devicePixelRatio);
    const cell = ([width, height]) => whole(480 * Math.max(1 / 60,
      Math.min(clientWidth / width, (clientHeight - leastBar) / height, clientHeight / (height + 360))));
    const [wide, upright] = this.layouts;
    const layout = cell(upright) > 1.25 * cell(wide) ? upright : wide;
    const twip = this.twip = cell(layout) / 480;
    const bar = Math.max(leastBar, whole(360 * twip)) / twip;
    const [screenWidth, screenHeight] = [clientWidth / twip, clientHeight / twip];
    const [mainWidth, mainHeight] = [layout[0], layout[1] + bar];
    this.lengths = { screenWidth, screenHeight, mainWidth, mainHeight, bar };
    classList.toggle("upright", layout === upright);
    const told = {
      u: `${twip}px`, pixel: `${1 / devicePixelRatio}px`, bar: `${bar * twip}px`, "main-width": mainWidth,
      "main-height": mainHeight, "main-left": (screenWidth - mainWidth) / 2, "main-top": (screenHeight - mainHeight) / 2,
    };
    for (const [name, value] of Object.entries(told)) style.setProperty(`--${name}`, value);
  },

  // The first message stays. A page that runs the game gives it up.
  tell(words, label = "Noch einmal beginnen", act = () => location.reload()) {
    if (this.over) return;
    this.over = true;
    this.release?.();
    const show = () => {
      document.body.innerHTML = '<main id="notice"><h1>Malvone</h1><p role="alert"></p><button></button></main>';
      document.querySelector("p").textContent = words;
      const button = document.querySelector("button");
      Object.assign(button, { textContent: label, onclick: act }).focus();
    };
    document.readyState === "loading" ? addEventListener("DOMContentLoaded", show) : show();
  },
  fail() { this.tell("Das Spiel kann nicht laufen: Eine seiner Dateien fehlt oder ist beschädigt."); },
};
start.fit();
if (location.protocol === "file:") {
  start.tell("Ein Browser lädt die Dateien des Spiels nicht aus einem Ordner, sondern nur von einem Webserver. " +
    "»./play --browser« startet einen.");
}
// A part of the game is missing, damaged, or more than this browser understands.
addEventListener("error", ({ target, filename }) => {
  if (target.integrity || (!start.plays && /\/(page|malvone)\.js/.test(filename))) start.fail();
}, true);
// Extensions run scripts on the page too; only the game's own faults end it.
addEventListener("unhandledrejection", ({ reason }) => { if (/(page|malvone)\.(js|wasm)/.test(reason?.stack)) start.fail(); });
addEventListener("DOMContentLoaded", () => { if (!document.getElementById("stock")) start.fail(); });
