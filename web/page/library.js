// The library in WebAssembly, the memory that it draws into, and what its header says.
import createModule from "./brisal.js";

export const WIDTH = 480;
export const HEIGHT = 320;
export const SIDE = 160;

// Blocks of memory by their names in C: type, number of elements, and bytes of each.
export const BLOCKS = {
  pixels: ["uint8_t", "WIDTH * HEIGHT * 4", WIDTH * HEIGHT * 4],
  source: ["uint8_t", "WIDTH * HEIGHT * 4", WIDTH * HEIGHT * 4],
  blend: ["uint8_t", "WIDTH * HEIGHT * 4", WIDTH * HEIGHT * 4],
  photo: ["uint32_t", "WIDTH * HEIGHT", WIDTH * HEIGHT * 4],
  flower: ["uint32_t", "SIDE * SIDE", SIDE * SIDE * 4],
  glow: ["uint32_t", "SIDE * SIDE", SIDE * SIDE * 4],
  shown: ["uint32_t", "WIDTH * HEIGHT", WIDTH * HEIGHT * 4],
  row: ["uint32_t", "WIDTH", WIDTH * 4],
  heads: ["int32_t", "1 + HEIGHT", (1 + HEIGHT) * 4],
  // A crossing takes 12 bytes: 25 edges cross 320 rows.
  nodes: ["uint8_t", "12 * 8192", 12 * 8192],
};
const CONTENT_ROOM = 256;
const RECORD_BYTES = 60 + 4 * 40;

async function fetched(name) {
  const response = await fetch(new URL(name, import.meta.url));
  if (!response.ok) throw new Error(`${name}: ${response.status}`);
  return response;
}

export async function openLibrary() {
  const [module, description, font] = await Promise.all([
    createModule(),
    fetched("./brisal.json").then((response) => response.json()),
    fetched("./text.crf").then((response) => response.arrayBuffer()),
  ]);
  return new Library(module, description, new Uint8Array(font));
}

class Library {
  constructor(module, description, fontFile) {
    this.module = module;
    this.version = description.version;
    this.functions = new Map(description.functions.map((entry) => [entry.name, entry]));
    this.constants = new Map(description.constants.map(({ name, value }) => [name, value]));
    this.addresses = {};
    for (const [name, [, , bytes]] of Object.entries(BLOCKS))
      this.addresses[name] = this.block(bytes);
    this.addresses.record = this.block(RECORD_BYTES);
    this.contentAt = this.block(CONTENT_ROOM);
    const fontAt = this.block(fontFile.length);
    this.bytes(fontAt, fontFile.length).set(fontFile);
    this.addresses.font = module._WebLoadFont(fontAt, fontFile.length);
    if (!this.addresses.font) throw new Error("the font cannot be read");
    module._BRSL_Init_Lib();
  }

  // All 0, as static arrays of C are.
  block(bytes) {
    const address = this.module._malloc(bytes);
    if (!address) throw new Error("there is no memory for the pictures");
    this.bytes(address, bytes).fill(0);
    return address;
  }

  bytes(address, count) {
    return this.module.HEAPU8.subarray(address, address + count);
  }

  words(address, count) {
    return this.module.HEAPU32.subarray(address >> 2, (address >> 2) + count);
  }

  // Keeps the bytes of an argument until the next ones.
  store(content) {
    this.bytes(this.contentAt, CONTENT_ROOM).set(content.subarray(0, CONTENT_ROOM));
    return this.contentAt;
  }

  poke(address, index, value) {
    this.words(address, index + 1)[index] = value;
  }

  call(name, args) {
    return this.module[`_${name}`](...args);
  }
}
