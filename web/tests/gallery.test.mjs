import assert from "node:assert/strict";
import { mkdirSync } from "node:fs";
import { after, before, test } from "node:test";
import { digest, drawNatively, shown, sourceOfCases } from "./native.mjs";
import { openSite } from "./site.mjs";

const SHOTS = process.env.BRISAL_SHOTS;
let site;

before(async () => {
  mkdirSync(SHOTS, { recursive: true });
  site = await openSite();
});
after(() => site?.close());

// Every function in every format; every option of its choices, every draw mode and backdrop.
async function allCases() {
  const { ENTRIES, BACKDROP_NAMES, defaultsOf, modesOf } = await import("/table.js");
  const { FORMATS } = await import("/statements.js");
  const cases = [];
  for (const entry of ENTRIES) {
    const add = (format, values, settings) =>
      cases.push({
        name: entry.name,
        size: format.size,
        values: { ...defaultsOf(entry), ...values },
        settings: {
          format: format.label,
          mode: "solid",
          backdrop: entry.backdrop ?? "photo",
          inkAlpha: 150,
          ...settings,
        },
      });
    for (const format of FORMATS) add(format, {}, {});
    let turn = 0;
    const next = () => FORMATS[(turn += 1) % FORMATS.length];
    for (const { label } of modesOf(entry)) add(next(), {}, { mode: label });
    for (const backdrop of BACKDROP_NAMES) add(next(), {}, { backdrop });
    for (const { kind, name, options } of entry.controls) {
      if (kind === "choice") options.forEach((_, at) => add(next(), { [name]: at }, {}));
      if (kind === "slider")
        add(next(), { [name]: entry.controls.find((one) => one.name === name).most }, {});
    }
  }
  return cases;
}

// In the page: draws each case as the controls would, and digests memory and canvas.
async function drawCases(cases) {
  const { ENTRIES } = await import("/table.js");
  const { FORMATS } = await import("/statements.js");
  const { gallery } = window;
  const hex = async (bytes) =>
    Array.from(new Uint8Array(await crypto.subtle.digest("SHA-256", bytes)), (byte) =>
      byte.toString(16).padStart(2, "0"),
    ).join("");
  const results = [];
  for (const { name, values, settings } of cases) {
    const entry = ENTRIES.find((one) => one.name === name);
    gallery.values.set(entry, { ...values });
    gallery.show(entry);
    gallery.configure({
      ...settings,
      format: FORMATS.find(({ label }) => label === settings.format),
    });
    gallery.draw();
    const canvas = gallery.context.getImageData(0, 0, 480, 320).data;
    results.push({ memory: await hex(gallery.pixels().slice()), canvas: await hex(canvas) });
  }
  return results;
}

test("every picture is the native library's, byte for byte", async () => {
  const page = await site.open();
  const cases = await page.evaluate(allCases);
  const source = await page.evaluate(sourceOfCases, cases);
  const drawn = await page.evaluate(drawCases, cases);
  const differing = [];
  const pictures = new Map();
  let at = 0;
  const count = await drawNatively(source, cases, (one, pixels) => {
    const { memory, canvas } = drawn[at];
    const label = `${one.name} ${JSON.stringify(one.settings)} ${JSON.stringify(one.values)}`;
    if (digest(pixels) !== memory) differing.push(`memory of ${label}`);
    if (digest(shown(pixels, one.settings.format)) !== canvas) differing.push(`canvas of ${label}`);
    pictures.set(one.name, (pictures.get(one.name) ?? new Set()).add(memory));
    at += 1;
  });
  assert.equal(count, cases.length, `the native program ends at ${JSON.stringify(cases[count])}`);
  assert.deepEqual(differing.slice(0, 5), [], `${differing.length} differ`);
  const all = new Set([...pictures.values()].flatMap((set) => [...set]));
  assert.ok(
    cases.length > 600 && all.size > cases.length / 2,
    `${all.size} pictures of ${cases.length} cases`,
  );
  console.log(
    `${cases.length} drawings of ${pictures.size} functions agree, ${all.size} different pictures`,
  );
  await page.close();
});

test("the program that is copied draws the picture that is seen", async () => {
  const page = await site.open({}, "#BRSL_HoriTextureStrip");
  await page.check("input[value='565']", { force: true });
  await page.waitForFunction(
    () => window.gallery.drawing && window.gallery.settings.format.size === 2,
  );
  await page.evaluate(() => window.gallery.draw());
  const [program, pixels] = await page.evaluate(() => [
    window.gallery.program(),
    Array.from(window.gallery.pixels()),
  ]);
  let written;
  await drawNatively(program, [{ size: 2 }], (_, picture) => {
    written = digest(picture);
  });
  assert.equal(written, digest(Uint8Array.from(pixels)));
  await page.close();
});

test("each function draws, over every format that it has", async () => {
  const page = await site.open();
  const silent = await page.evaluate(async () => {
    const { ENTRIES } = await import("/table.js");
    const { FORMATS } = await import("/statements.js");
    const { gallery } = window;
    const picture = () => gallery.pixels().slice();
    const silentOnes = [];
    for (const entry of ENTRIES) {
      for (const format of FORMATS) {
        gallery.show(entry);
        gallery.configure({ format });
        gallery.draw();
        const drawn = picture();
        gallery.perform(gallery.drawing.setUp);
        if (picture().every((byte, at) => byte === drawn[at]))
          silentOnes.push(`${entry.name} ${format.label}`);
      }
    }
    return silentOnes;
  });
  assert.deepEqual(silent.sort(), [
    "BRSL_WriteLine_32Bit 555",
    "BRSL_WriteLine_32Bit 565",
    "BRSL_WriteLine_32Bit RGB",
  ]);
  await page.close();
});

test("the page is used by keyboard alone", async () => {
  const page = await site.open({}, "#BRSL_Circle");
  const before_ = await page.evaluate(() => window.gallery.pixels().join());
  await page.keyboard.press("Tab");
  assert.equal(await page.evaluate(() => document.activeElement.id), "filter");
  await page.keyboard.type("quadg");
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("Enter");
  await page.waitForFunction(() => document.getElementById("name").textContent === "BRSL_QuadG");
  assert.equal(await page.evaluate(() => location.hash), "#BRSL_QuadG");

  await page.focus("#argument-x0");
  for (let step = 0; step < 5; step += 1) await page.keyboard.press("ArrowRight");
  await page.waitForFunction(() =>
    document.getElementById("code").textContent.includes("BRSL_QuadG(125, 50"),
  );
  assert.notEqual(await page.evaluate(() => window.gallery.pixels().join()), before_);

  await page.focus("input[name=format]:checked");
  await page.keyboard.press("ArrowLeft");
  await page.waitForFunction(() => window.gallery.settings.format.label === "RGB");

  const unnamed = await page.evaluate(() =>
    [...document.querySelectorAll("input, select, button, summary, a")]
      .filter(
        (node) =>
          !(node.labels?.length || node.getAttribute("aria-label") || node.textContent.trim()),
      )
      .map((node) => node.outerHTML),
  );
  assert.deepEqual(unnamed, []);
  await page.close();
});

test("a dropped photograph changes the picture", async () => {
  const page = await site.open({}, "#BRSL_FillRect_GreyScale");
  const centre = () =>
    page.evaluate(() => Array.from(window.gallery.context.getImageData(20, 20, 1, 1).data));
  const former = await centre();
  await page.evaluate(async () => {
    const canvas = Object.assign(document.createElement("canvas"), { width: 300, height: 400 });
    const context = canvas.getContext("2d");
    context.fillStyle = "#20c040";
    context.fillRect(0, 0, 300, 400);
    const blob = await new Promise((done) => {
      canvas.toBlob(done);
    });
    const dataTransfer = new DataTransfer();
    dataTransfer.items.add(new File([blob], "green.png", { type: "image/png" }));
    document
      .getElementById("stage")
      .dispatchEvent(new DragEvent("drop", { dataTransfer, bubbles: true, cancelable: true }));
  });
  await page.waitForFunction(() =>
    document.getElementById("status").textContent.includes("green.png"),
  );
  await page.waitForFunction(
    (was) => window.gallery.context.getImageData(20, 20, 1, 1).data.join() !== was,
    former.join(),
  );
  assert.deepEqual(await centre(), [0x20, 0xc0, 0x40, 255]);

  await page.setInputFiles("#photo", {
    name: "not.png",
    mimeType: "image/png",
    buffer: Buffer.from("no picture"),
  });
  await page.waitForFunction(() =>
    document.getElementById("status").textContent.includes("not a picture"),
  );
  assert.deepEqual(await centre(), [0x20, 0xc0, 0x40, 255]);
  await page.close();
});

test("points are dragged on the picture", async () => {
  const page = await site.open({}, "#BRSL_Circle");
  const handle = await page.locator("#handles span").boundingBox();
  const [x, y] = [handle.x + handle.width / 2, handle.y + handle.height / 2];
  await page.mouse.move(x, y);
  await page.mouse.down();
  await page.mouse.move(x + 60, y - 40, { steps: 4 });
  await page.mouse.up();
  const scale = 480 / (await page.locator("#picture").boundingBox()).width;
  const values = await page.evaluate(() => ({
    ...window.gallery.current,
    slider: document.getElementById("argument-cx").value,
  }));
  assert.ok(
    Math.abs(values.cx - (240 + 60 * scale)) <= 1 && Math.abs(values.cy - (160 - 40 * scale)) <= 1,
  );
  assert.equal(Number(values.slider), values.cx);
  await page.close();
});

test("it fits phones and large screens, in the dark too, without a complaint", async () => {
  for (const [name, width, height, colorScheme, hash] of [
    ["desk", 1440, 900, "light", "#BRSL_ShadeBox"],
    ["desk-dark", 1440, 900, "dark", "#BRSL_DrawSpriteQuad"],
    ["large", 2560, 1440, "light", "#BRSL_FillRect_Light"],
    ["tablet", 900, 1100, "light", "#BRSL_QuadT"],
    ["phone", 390, 844, "light", "#BRSL_Circle"],
    ["phone-dark", 390, 844, "dark", "#CRF_Draw"],
  ]) {
    const page = await site.open({ viewport: { width, height }, colorScheme }, hash);
    await page.waitForTimeout(350);
    assert.ok(
      await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth),
      `${name} scrolls sideways`,
    );
    await page.screenshot({ path: `${SHOTS}/${name}.png` });
    await page.close();
  }
  assert.deepEqual(site.complaints, []);
});
