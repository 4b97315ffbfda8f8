// What is shown: a function with the values of its arguments, drawn into a canvas.
import { excerpt, programText } from "./code.js";
import { HEIGHT, WIDTH } from "./library.js";
import { preparation } from "./pictures.js";
import { FORMATS, X32, call, named, pitch, ref, run, withReleases } from "./statements.js";
import { ENTRIES, defaultsOf, drawingOf } from "./table.js";

export class Gallery extends EventTarget {
  constructor(library, canvas) {
    super();
    this.library = library;
    this.context = canvas.getContext("2d");
    this.image = this.context.createImageData(WIDTH, HEIGHT);
    this.rgba = new Uint32Array(this.image.data.buffer);
    this.settings = { format: X32, mode: "solid", backdrop: "photo", inkAlpha: 150 };
    this.values = new Map(ENTRIES.map((entry) => [entry, defaultsOf(entry)]));
    this.ownPhoto = false;
    this.perform(preparation);
  }

  perform(statements) {
    run(withReleases(statements, this.library.functions), this.library);
  }

  show(entry) {
    this.entry = entry;
    this.settings.backdrop = entry.backdrop ?? "photo";
    this.dispatchEvent(new Event("entry"));
    this.redraw();
  }

  set(name, value) {
    this.values.get(this.entry)[name] = value;
    this.redraw();
  }

  configure(settings) {
    Object.assign(this.settings, settings);
    this.redraw();
  }

  reset() {
    this.values.set(this.entry, defaultsOf(this.entry));
    this.show(this.entry);
  }

  get current() {
    return this.values.get(this.entry);
  }

  // Many changes between two frames are drawn once.
  redraw() {
    if (this.waiting) return;
    this.waiting = requestAnimationFrame(() => this.draw());
  }

  draw() {
    cancelAnimationFrame(this.waiting);
    this.waiting = 0;
    this.drawing = drawingOf(this.entry, this.current, this.settings);
    this.perform([...this.drawing.setUp, ...this.drawing.own]);
    this.present();
    this.dispatchEvent(new Event("drawn"));
  }

  present() {
    const { format } = this.settings;
    this.perform([
      call("BRSL_SetBuffer", ref("shown"), pitch(X32), named(X32)),
      call("BRSL_SetBufferViewPort", 0, 0, WIDTH, HEIGHT),
      call("BRSL_SetSrcBuffer", ref("pixels"), pitch(format), named(format)),
      call("BRSL_Blit", 0, 0, WIDTH, HEIGHT, 0, 0, 0, 0),
    ]);
    const words = this.library.words(this.library.addresses.shown, WIDTH * HEIGHT);
    for (let at = 0; at < words.length; at += 1) {
      const word = words[at];
      this.rgba[at] = 0xff000000 | ((word & 0xff) << 16) | (word & 0xff00) | ((word >> 16) & 0xff);
    }
    this.context.putImageData(this.image, 0, 0);
  }

  // The target's bytes as the last drawing left them.
  pixels() {
    return this.library.bytes(
      this.library.addresses.pixels,
      WIDTH * HEIGHT * this.settings.format.size,
    );
  }

  callText() {
    return excerpt(this.drawing.own, this.library.functions);
  }

  program() {
    const statements = [...this.drawing.setUp, ...this.drawing.own];
    const {
      ownPhoto,
      settings: { format },
      entry: { needsFont },
    } = this;
    return programText(
      { preparation, statements, format, ownPhoto, needsFont },
      this.library.functions,
    );
  }

  // A photograph of the user: 0xAARRGGBB words, WIDTH by HEIGHT.
  usePhoto(words) {
    this.library.words(this.library.addresses.photo, WIDTH * HEIGHT).set(words);
    this.ownPhoto = true;
    this.redraw();
  }
}

export const formatNamed = (label) => FORMATS.find((format) => format.label === label);
