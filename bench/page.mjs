#!/usr/bin/env node
// page.mjs: measures the page that has been built, in a browser that has never seen it and in one that
// has, at the CPU's own speed and slowed to a quarter: when the first picture is seen, when the game
// plays, and how long the longest task holds up the browser. Milliseconds, medians of RUNS runs (5).
//   npm --prefix tests/web ci && bench/page.mjs [RUNS]
import { spawn } from "node:child_process";
import { chromium, end } from "../tests/web/engines.mjs";

const runs = Number(process.argv[2] ?? 5);
const root = new URL("..", import.meta.url).pathname;
const server = spawn(`${root}tools/serve.py`, [`${root}build/web`, "0"], { stdio: ["ignore", "pipe", "inherit"] });
process.on("exit", () => server.kill());
const address = /http\S+/.exec(await new Promise(resolve => server.stdout.once("data", resolve)))[0];
const engine = await chromium();

const watch = () => {
  globalThis.longest = 0;
  new PerformanceObserver(tasks => {
    for (const { duration } of tasks.getEntries()) longest = Math.max(longest, duration);
  }).observe({ type: "longtask", buffered: true });
  // The first picture goes when the game can be played.
  addEventListener("DOMContentLoaded", () => new MutationObserver(() => {
    if (!document.getElementById("first")) globalThis.plays ??= performance.now();
  }).observe(document.body, { childList: true }));
};
const visit = async tab => {
  await tab.go(address);
  // The browser tells of a paint some time after it.
  await tab.page.waitForFunction(() => globalThis.plays && performance.getEntriesByName("first-contentful-paint")[0], { polling: 200 });
  await tab.run(() => navigator.serviceWorker.ready.then(() => true));
  return tab.run(() => [performance.getEntriesByName("first-contentful-paint")[0].startTime, plays, longest]);
};
const median = values => Math.round([...values].sort((a, b) => a - b)[values.length >> 1]);

console.log("visit      first picture    plays    longest task");
for (const slower of [1, 4]) {
  const times = { cold: [], warm: [] };
  for (let run = 0; run < runs; ++run) {
    const tab = await engine.tab({ size: { width: 1280, height: 720 }, prepare: page => page.evaluateOnNewDocument(watch) });
    await tab.page.emulateCPUThrottling(slower);
    for (const visits of Object.values(times)) visits.push(await visit(tab));
    await tab.close();
  }
  for (const [name, visits] of Object.entries(times)) {
    const [seen, plays, longest] = [0, 1, 2].map(i => String(median(visits.map(all => all[i]))));
    console.log(`${name}, ${slower}x ${seen.padStart(15)} ${plays.padStart(8)} ${longest.padStart(15)}`);
  }
}
await end();
process.exit();
