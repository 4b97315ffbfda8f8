// A drawing as a list of statements, which can be run here and be printed as C.
import { BLOCKS, HEIGHT, WIDTH } from "./library.js";

export const FORMATS = [
  { code: 1, c: "BRSL_FORMAT_565", label: "565", size: 2 },
  { code: 2, c: "BRSL_FORMAT_555", label: "555", size: 2 },
  { code: 3, c: "BRSL_FORMAT_RGB", label: "RGB", size: 3 },
  { code: 4, c: "BRSL_FORMAT_X32", label: "X32", size: 4 },
  { code: 5, c: "BRSL_FORMAT_A32", label: "A32", size: 4 },
];
export const A32 = FORMATS[4];
export const X32 = FORMATS[3];

// Arguments that are not plain numbers know their value, or how to find it, and their text.
export const symbol = (c, value) => ({ c, value });
export const named = (format) => symbol(format.c, format.code);
// An offset counts elements, as it does in C.
export const ref = (block, offset = 0) => ({ block, offset });
export const record = { block: "record", offset: 0, c: "&record" };
export const words = (values) => ({ words: values, c: `(int32_t[]){${values.join(", ")}}` });
export const text = (string) => ({ codes: Array.from(string, latin1) });
export const pitch = (format, width = "WIDTH", columns = 480) =>
  symbol(`${width} * ${format.size}`, columns * format.size);

export const call = (name, ...args) => ({ name, args });
export const make = (variable, name, ...args) => ({ variable, name, args });
// The descriptor of a block with the whole picture in it.
export const surfaceOf = (format, block = "pixels") =>
  make("surface", "BRSL_AllocSurfaceDesc", named(format), ref(block), pitch(format), WIDTH, HEIGHT);
export const packed = (colour) => ({ call: call("RGBForBuffer", colour, 0) });
export const poke = (block, index, value) => ({ poke: block, index, value });

// Flags and draw modes, of which those of value 0 need not be said.
export function flags(...parts) {
  const said = parts.filter((part) => part.value !== 0);
  return said.length === 0
    ? symbol("0", 0)
    : symbol(
        said.map((part) => part.c).join(" | "),
        said.reduce((sum, part) => sum | part.value, 0),
      );
}

function latin1(character) {
  const code = character.codePointAt(0);
  return code < 256 ? code : 63;
}

const ELEMENT_BYTES = { uint8_t: 1, int32_t: 4, uint32_t: 4 };
const bytesTo = ({ block, offset }) => (offset ? offset * ELEMENT_BYTES[BLOCKS[block][0]] : 0);

// What is made is given back at the end of the drawing.
const RELEASES = { "BRSL_SurfaceDesc *": "BRSL_FreeSurfaceDesc", "TPD_Pipeline *": "TPD_Free" };

export function withReleases(statements, functions) {
  const made = statements.filter((statement) => statement.variable);
  return statements.concat(
    made
      .reverse()
      .map(({ variable, name }) => call(RELEASES[functions.get(name).result], ref(variable))),
  );
}

export function run(statements, library) {
  const places = { ...library.addresses };
  const valueOf = (argument) => {
    if (typeof argument === "number") return argument;
    if (argument.codes) return library.store(Uint8Array.from([...argument.codes, 0]));
    if (argument.words)
      return library.store(new Uint8Array(Int32Array.from(argument.words).buffer));
    if (argument.call) return perform(argument.call);
    return argument.block ? places[argument.block] + bytesTo(argument) : argument.value;
  };
  const perform = ({ name, args }) => library.call(name, args.map(valueOf));
  for (const statement of statements) {
    if (statement.poke) library.poke(places[statement.poke], statement.index, statement.value);
    else if (statement.variable) places[statement.variable] = perform(statement);
    else perform(statement);
  }
}
