// Every function of the gallery, and the whole drawing that shows it.
import { copyOf, targetOf } from "./pictures.js";
import { call, named, pitch, ref } from "./statements.js";
import { MODES } from "./table/controls.js";
import { pictures } from "./table/pictures.js";
import { polygons } from "./table/polygons.js";
import { scenes } from "./table/scenes.js";
import { shapes } from "./table/shapes.js";
import { strips } from "./table/strips.js";
import { textures } from "./table/textures.js";

const TABLES = [shapes, polygons, textures, scenes, pictures, strips];
export const ENTRIES = TABLES.flat().map((entry) => ({ modes: "none", ...entry }));
export const BACKDROP_NAMES = ["photo", "gradient", "black"];

const OFFERED = {
  all: () => true,
  gouraud: (mode) => mode.gouraud,
  flagged: (mode) => mode.label !== "solid",
  none: (mode) => mode.label === "solid",
};
export const modesOf = (entry) => MODES.filter(OFFERED[entry.modes]);

// The mode that was picked where the function offers it, else the first that it does.
export function modeFor(entry, label) {
  const offered = modesOf(entry);
  return offered.find((mode) => mode.label === label) ?? offered[0];
}

export function defaultsOf(entry) {
  return Object.fromEntries(entry.controls.map(({ name, value }) => [name, value]));
}

// Choices are kept by their number; drawings are given what stands there.
function resolved(entry, values) {
  return Object.fromEntries(
    entry.controls.map(({ name, kind, options }) => [
      name,
      kind === "choice" ? options[values[name]] : values[name],
    ]),
  );
}

export function drawingOf(entry, values, { format, mode, backdrop, inkAlpha }) {
  const scene = { format, mode: modeFor(entry, mode) };
  const given = resolved(entry, values);
  const source = entry.source?.(given, scene);
  const setUp = [
    ...(source ? copyOf("source", ...source) : []),
    ...(entry.blend ? copyOf("blend", format, "gradient") : []),
    ...targetOf(format, backdrop),
    ...(source
      ? [call("BRSL_SetSrcBuffer", ref("source"), pitch(source[0]), named(source[0]))]
      : []),
    ...(entry.blend
      ? [call("BRSL_SetSrcBlendBuffer", ref("blend"), pitch(format), named(format))]
      : []),
  ];
  const alpha = scene.mode.label === "alpha" ? [call("BRSL_SetInkAlpha", inkAlpha)] : [];
  return { setUp, own: [...alpha, ...entry.draw(given, scene)] };
}
