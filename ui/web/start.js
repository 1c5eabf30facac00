// start.js: what stands in the page itself, to be there before any other file: how large the game is
// drawn. Cells are whole device pixels at every size.
const start = {
  // The ways to lay out the main window: width and height of its client area in twips. The upright
  // one is for telephones; where its parts lie, first-picture.mjs says.
  layouts: [[11325, 6945], [7125, 10480]],

  fit() {
    const { clientWidth, clientHeight, style, classList } = document.documentElement;
    const whole = length => Math.floor(length * devicePixelRatio + 1e-6) / devicePixelRatio;
    // Title and menu stay high enough for a finger.
    const leastBar = whole(24 + 0.999 / devicePixelRatio);
    const cell = ([width, height]) => whole(480 * Math.max(1 / 60,
      Math.min(clientWidth / width, (clientHeight - leastBar) / height, clientHeight / (height + 360))));
    const [wide, upright] = this.layouts;
    const layout = cell(upright) > 1.4 * cell(wide) ? upright : wide;
    this.twip = cell(layout) / 480;
    this.bar = Math.max(leastBar, whole(360 * this.twip)) / this.twip;
    this.screen = { width: clientWidth / this.twip, height: clientHeight / this.twip };
    this.main = { width: layout[0], height: layout[1] + this.bar };
    classList.toggle("upright", layout === upright);
    const told = {
      u: `${this.twip}px`, pixel: `${1 / devicePixelRatio}px`, bar: `${this.bar * this.twip}px`,
      "main-width": this.main.width, "main-left": (this.screen.width - this.main.width) / 2,
      "main-height": this.main.height, "main-top": (this.screen.height - this.main.height) / 2,
    };
    for (const [name, value] of Object.entries(told)) style.setProperty(`--${name}`, value);
  },
};
start.fit();
