// The page in a browser: served from this machine, opened without a window.
import { createReadStream, existsSync } from "node:fs";
import { createServer } from "node:http";
import { createRequire } from "node:module";
import { extname, join, normalize } from "node:path";

const TYPES = {
  ".html": "text/html; charset=utf-8",
  ".js": "text/javascript",
  ".css": "text/css",
  ".json": "application/json",
  ".wasm": "application/wasm",
  ".crf": "application/octet-stream",
};
const SITE = process.env.BRISAL_SITE;

function serve(request, response) {
  const name = normalize(decodeURIComponent(new URL(request.url, "http://localhost").pathname));
  const file = join(SITE, name.endsWith("/") ? `${name}index.html` : name);
  if (!file.startsWith(SITE) || !existsSync(file)) {
    response.writeHead(404).end();
    return;
  }
  response.writeHead(200, { "content-type": TYPES[extname(file)] ?? "text/plain" });
  createReadStream(file).pipe(response);
}

export async function openSite() {
  const server = createServer(serve);
  await new Promise((done) => {
    server.listen(0, "localhost", done);
  });
  const { chromium } = createRequire(join(process.env.BRISAL_MODULES, "/"))("playwright-core");
  const browser = await chromium.launch({
    executablePath: "/usr/bin/chromium",
    args: [
      "--headless",
      "--no-sandbox",
      "--disable-gpu",
      "--disable-quic",
      "--no-first-run",
      "--disable-background-networking",
      "--disable-component-update",
      "--disable-sync",
    ],
  });
  const address = `http://localhost:${server.address().port}/`;
  const complaints = [];

  async function open(options = {}, hash = "") {
    const page = await browser.newPage({ viewport: { width: 1440, height: 900 }, ...options });
    page.on("console", (message) => {
      // It is the tests that read the canvas again and again.
      if (/willReadFrequently/.test(message.text())) return;
      if (["error", "warning"].includes(message.type())) complaints.push(message.text());
    });
    page.on("pageerror", (error) => complaints.push(String(error)));
    page.on("requestfailed", (request) => complaints.push(`${request.url()} failed`));
    await page.goto(address + hash);
    await page.waitForSelector("body.ready");
    await page.evaluate(async () => {
      window.gallery = await (await import("/main.js")).gallery;
    });
    return page;
  }

  const close = async () => {
    await browser.close();
    server.close();
  };
  return { open, close, complaints };
}
