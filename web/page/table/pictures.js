// Blits, effects, filters and scaling: what copies or changes pictures.
import { HEIGHT, WIDTH } from "../library.js";
import { FORMATS, call, make, pitch, ref, surfaceOf, words } from "../statements.js";
import { across, choice, colour, down, insideX, insideY, option, slider } from "./controls.js";

const formatChoice = (name, first) =>
  choice(
    name,
    ...[...FORMATS]
      .sort((a, b) => (b.code === first) - (a.code === first))
      .map(({ label, c, code }) => option(label, c, code)),
  );
const formatOf = (picked) => FORMATS[picked.value - 1];

const part = [
  insideX("sx1", 40),
  insideY("sy1", 60),
  slider("sx2", 1, WIDTH, 400),
  slider("sy2", 1, HEIGHT, 280),
  across("dx", 60),
  down("dy", 50),
];
const partOf = (v) => [v.sx1, v.sy1, v.sx2, v.sy2, v.dx, v.dy];

const effects = choice(
  "fxMode",
  option("8192  multiply", "8192", 8192),
  option("32  half", "32", 32),
  option("64  add", "64", 64),
  option("128  subtract", "128", 128),
  option("1  copy, paint the source", "1", 1),
  option("16384  copy, multiply the source", "16384", 16384),
  option("1024  multiply by the blend source", "1024", 1024),
  option("0  plain", "0", 0),
);

const blits = [
  {
    name: "BRSL_Blit",
    group: "Blits",
    source: (v) => [formatOf(v.from), "photo"],
    controls: [
      ...part,
      formatChoice("from", 5),
      colour("maskColour", 0x000000),
      choice("flags", option("all pixels", "0", 0), option("leave out or blend", "1", 1)),
    ],
    points: [["dx", "dy"]],
    draw: (v) => [call("BRSL_Blit", ...partOf(v), v.maskColour, v.flags)],
  },
  {
    name: "BRSL_BlitFX",
    group: "Blits",
    source: (v, { format }) => [format, "photo"],
    blend: true,
    controls: [
      ...part,
      effects,
      colour("fxColour", 0xff9a50),
      choice("useBlendSource", option("the colour", "0", 0), option("the blend source", "1", 1)),
    ],
    points: [["dx", "dy"]],
    draw: (v) => [
      call("BRSL_BlitFX", ...partOf(v), 0, 0, v.fxMode, v.fxColour, v.useBlendSource, 0),
    ],
  },
  {
    name: "BRSL_MirrorRect",
    group: "Blits",
    controls: [
      slider("x1", 0, WIDTH, 60),
      slider("y1", 0, HEIGHT, 40),
      slider("x2", 0, WIDTH, 420),
      slider("y2", 0, HEIGHT, 280),
      choice("horizontal", option("yes", "1", 1), option("no", "0", 0)),
      choice("vertical", option("yes", "1", 1), option("no", "0", 0)),
    ],
    points: [
      ["x1", "y1"],
      ["x2", "y2"],
    ],
    draw: (v) => [
      call("BRSL_MirrorRect", words([v.x1, v.y1, v.x2, v.y2]), v.horizontal, v.vertical),
    ],
  },
];

const region = [
  slider("left", 0, WIDTH, 90),
  slider("top", 0, HEIGHT, 50),
  slider("right", 0, WIDTH, 390),
  slider("bottom", 0, HEIGHT, 270),
];
const light = [
  across("cx", 322),
  down("cy", 140),
  slider("intensity", 0, 800, 420),
  slider("falloff", 0, 8, 1.75, 0.25),
];

const filters = [
  {
    name: "BRSL_FillRect_Blur",
    controls: [slider("divisor", 1, 24, 9, 0.5), slider("times", 1, 12, 4)],
    draw: (v) =>
      Array.from({ length: v.times }, () => call("BRSL_FillRect_Blur", ref("surface"), v.divisor)),
  },
  {
    name: "BRSL_FillRect_Fade",
    controls: [slider("percent", 0, 400, 45)],
    draw: (v) => [call("BRSL_FillRect_Fade", ref("surface"), v.percent)],
  },
  {
    name: "BRSL_FillRect_GreyScale",
    controls: [],
    draw: () => [call("BRSL_FillRect_GreyScale", ref("surface"))],
  },
  {
    name: "BRSL_FillRect_Light",
    controls: light,
    points: [["cx", "cy"]],
    draw: (v) => [
      call("BRSL_FillRect_Light", ref("surface"), v.cx, v.cy, v.intensity, v.falloff, 0),
    ],
  },
  {
    name: "BRSL_FillRect_PhongMap",
    controls: [...light, colour("colour", 0x7fb2ff)],
    points: [["cx", "cy"]],
    draw: (v) => [
      call(
        "BRSL_FillRect_PhongMap",
        ref("surface"),
        v.cx,
        v.cy,
        v.colour,
        v.intensity,
        v.falloff,
        0,
      ),
    ],
  },
].map((entry) => ({
  ...entry,
  group: "Filters",
  controls: [...entry.controls, ...region],
  points: [...(entry.points ?? []), ["left", "top"], ["right", "bottom"]],
  draw: (v, scene) => [
    surfaceOf(scene.format),
    call("BRSL_SetSurfaceDescVP", ref("surface"), v.left, v.top, v.right, v.bottom),
    ...entry.draw(v, scene),
  ],
}));

const scaling = {
  name: "BRSL_ScaleSurface",
  group: "Scaling",
  source: (v) => [formatOf(v.from), "photo"],
  controls: [
    insideX("x", 280),
    insideY("y", 100),
    slider("width", 1, 480, 90),
    slider("height", 1, 320, 60),
    choice(
      "mode",
      option("1111  four pixels", "1111", 1111),
      option("1  bilinear", "1", 1),
      option("0  nearest", "0", 0),
    ),
    formatChoice("from", 4),
    ...region,
  ],
  points: [
    ["left", "top"],
    ["right", "bottom"],
  ],
  draw: (v, { format }) => {
    const from = formatOf(v.from);
    const [width, height] = [Math.min(v.width, WIDTH - v.x), Math.min(v.height, HEIGHT - v.y)];
    return [
      make(
        "part",
        "BRSL_AllocSurfaceDesc",
        v.from,
        ref("source", (v.y * WIDTH + v.x) * from.size),
        pitch(from),
        width,
        height,
      ),
      surfaceOf(format),
      call("BRSL_SetSurfaceDescVP", ref("surface"), v.left, v.top, v.right, v.bottom),
      call("BRSL_ScaleSurface", ref("part"), ref("surface"), v.mode),
    ];
  },
};

const mapBlock = {
  name: "BRSL_CopyRect_MoveMapBlk",
  group: "Scaling",
  source: (v) => [formatOf(v.from), "photo"],
  controls: [
    insideX("x1", 260),
    insideY("y1", 90),
    slider("x2", 1, WIDTH, 400),
    slider("y2", 1, HEIGHT, 190),
    across("dx", 60),
    down("dy", 60),
    formatChoice("from", 4),
  ],
  points: [["dx", "dy"]],
  draw: (v, { format }) => [
    make(
      "photograph",
      "BRSL_AllocSurfaceDesc",
      v.from,
      ref("source"),
      pitch(formatOf(v.from)),
      WIDTH,
      HEIGHT,
    ),
    surfaceOf(format),
    call(
      "BRSL_CopyRect_MoveMapBlk",
      ref("photograph"),
      v.x1,
      v.y1,
      v.x2,
      v.y2,
      ref("surface"),
      v.dx,
      v.dy,
      ref("row"),
      0,
    ),
  ],
};

export const pictures = [...blits, ...filters, scaling, mapBlock];
