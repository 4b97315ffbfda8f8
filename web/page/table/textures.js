// Textured polygons and sprites.
import { HEIGHT, SIDE, WIDTH } from "../library.js";
import { A32, X32, call, flags, make, named, pitch, ref, symbol } from "../statements.js";
import { across, choice, colour, corners, down, option, placed, slider } from "./controls.js";

const images = {
  photo: { block: "photo", width: "WIDTH", columns: WIDTH, rows: HEIGHT },
  flower: { block: "flower", width: "SIDE", columns: SIDE, rows: SIDE },
  glow: { block: "glow", width: "SIDE", columns: SIDE, rows: SIDE },
};
const imageChoice = (...names) =>
  choice("texture", ...names.map((name) => ({ label: name, image: images[name] })));
const storages = [
  { label: "A32: its own alpha", format: A32 },
  { label: "X32: mask colour and output effect", format: X32 },
];

const outputs = choice(
  "outputEffect",
  option("1  plain", "1", 1),
  option("2  level", "2", 2),
  option("3  half", "3", 3),
  option("4  add", "4", 4),
  option("5  subtract", "5", 5),
);
const filter = choice(
  "filter",
  option("bilinear", "0x80000000", 0x80000000),
  option("off", "0", 0),
);
const effects = choice(
  "effect",
  option("none", "0", 0),
  option("0x40  times level", "0x40", 0x40),
  option("0x800  towards the colour", "0x800", 0x800),
  option("0x1000  add the colour", "0x1000", 0x1000),
  option("0x2000  subtract the colour", "0x2000", 0x2000),
  option("0x400  the colour", "0x400", 0x400),
);
const pipelineOptions = [
  filter,
  effects,
  colour("tintColour", 0x4060c0),
  slider("level", 0, 255, 128),
  outputs,
];

const pipelineControls = [choice("format", ...storages), ...pipelineOptions];
// Gouraud colours have no alpha, and multiply with that of texels.
const litControls = [choice("format", ...[...storages].reverse()), ...pipelineOptions];

const textureOf = ({ texture: { image }, format: { format } }) =>
  make(
    "texture",
    "BRSL_AllocSurfaceDesc",
    named(format),
    ref(image.block),
    pitch(format, image.width, image.columns),
    image.columns,
    image.rows,
  );
const MASK = symbol("1", 1);
const UNTINTED = symbol("-1", -1);

const pipelineOf = (v, gouraud = symbol("0", 0)) => [
  textureOf(v),
  make(
    "pipeline",
    "TPD_BuildSpriteDrawMode",
    flags(MASK, v.filter, v.effect, gouraud),
    UNTINTED,
    v.tintColour,
    v.level,
  ),
  call("TPD_SetOutputEffect", ref("pipeline"), v.outputEffect, 0, v.level),
];

const texels = ({ columns, rows }) => [
  [0, 0],
  [columns - 1, 0],
  [columns - 1, rows - 1],
  [0, rows - 1],
];
const vertices = (places, image) => places.flatMap((place, at) => [...place, ...texels(image)[at]]);

const textured = [
  {
    name: "BRSL_TriT",
    controls: [
      imageChoice("photo", "flower", "glow"),
      across("x0", 240),
      down("y0", 30),
      across("x1", 420),
      down("y1", 250),
      across("x2", 70),
      down("y2", 290),
      ...pipelineControls,
    ],
    points: [
      ["x0", "y0"],
      ["x1", "y1"],
      ["x2", "y2"],
    ],
    draw: (v) => [
      ...pipelineOf(v),
      call(
        "BRSL_TriT",
        ref("texture"),
        ...vertices(
          [
            [v.x0, v.y0],
            [v.x1, v.y1],
            [v.x2, v.y2],
          ],
          v.texture.image,
        ),
        ref("pipeline"),
      ),
    ],
  },
  {
    name: "BRSL_QuadT",
    controls: [imageChoice("photo", "flower", "glow"), ...placed(250, -18), ...pipelineControls],
    points: [["cx", "cy"]],
    draw: (v) => [
      ...pipelineOf(v),
      call("BRSL_QuadT", ref("texture"), ...vertices(corners(v), v.texture.image), ref("pipeline")),
    ],
  },
  {
    name: "BRSL_DrawTexture",
    controls: [
      imageChoice("flower", "glow", "photo"),
      across("x", 160),
      down("y", 80),
      ...pipelineControls,
    ],
    points: [["x", "y"]],
    draw: (v) => [
      ...pipelineOf(v),
      call("BRSL_DrawTexture", ref("texture"), v.x, v.y, ref("pipeline")),
    ],
  },
].map((entry) => ({ ...entry, group: "Textures", backdrop: "gradient" }));

const split = choice("split", option("one polygon", "0", 0), option("two triangles", "1", 1));
const lit = choice(
  "light",
  option("0x80  multiply", "0x80", 0x80),
  option("0x100  half", "0x100", 0x100),
  option("0x200  add", "0x200", 0x200),
);

const sprites = [
  {
    name: "BRSL_DrawSpriteQuad",
    controls: [
      imageChoice("flower", "glow", "photo"),
      ...placed(240, 15),
      split,
      ...pipelineControls,
    ],
    draw: (v) => [
      ...pipelineOf(v),
      call(
        "BRSL_DrawSpriteQuad",
        ref("texture"),
        ...vertices(corners(v), v.texture.image),
        ref("pipeline"),
        v.split,
      ),
    ],
  },
  {
    name: "BRSL_DrawSpriteRGBQuad",
    controls: [
      imageChoice("flower", "photo", "glow"),
      ...placed(260, -10),
      split,
      lit,
      colour("colour0", 0xffffff),
      colour("colour1", 0xffc080),
      colour("colour2", 0x4060ff),
      colour("colour3", 0x80ffc0),
      ...litControls,
    ],
    draw: (v) => [
      ...pipelineOf(v, v.light),
      call(
        "BRSL_DrawSpriteRGBQuad",
        ref("texture"),
        ...corners(v).flatMap((place, at) => [
          ...place,
          ...texels(v.texture.image)[at],
          v[`colour${at}`],
        ]),
        ref("pipeline"),
        v.split,
      ),
    ],
  },
].map((entry) => ({ ...entry, group: "Sprites", points: [["cx", "cy"]] }));

export const textures = [...textured, ...sprites];
