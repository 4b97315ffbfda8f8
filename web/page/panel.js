// A labelled control for each argument.
import { modesOf, modeFor } from "./table.js";

const element = (name, properties = {}) => Object.assign(document.createElement(name), properties);
const hexOf = (value) => `#${(value & 0xffffff).toString(16).padStart(6, "0")}`;

function slider(control, value, id, change) {
  const input = element("input", {
    type: "range",
    id,
    min: control.least,
    max: control.most,
    step: control.step,
  });
  input.value = value;
  const output = element("output", { value: String(value) });
  output.htmlFor = id;
  input.addEventListener("input", () => {
    output.value = input.value;
    change(Number(input.value));
  });
  return {
    parts: [output, input],
    update: (next) => {
      input.value = next;
      output.value = String(next);
    },
  };
}

function colour(control, value, id, change) {
  const input = element("input", { type: "color", id, value: hexOf(value) });
  const output = element("output", { value: hexOf(value).slice(1).toUpperCase() });
  output.htmlFor = id;
  input.addEventListener("input", () => {
    output.value = input.value.slice(1).toUpperCase();
    change(Number.parseInt(input.value.slice(1), 16));
  });
  return { parts: [output, input] };
}

function choice(control, value, id, change) {
  const select = element("select", { id });
  select.append(
    ...control.options.map(({ label }, at) => new Option(label, at, at === value, at === value)),
  );
  select.addEventListener("change", () => change(Number(select.value)));
  return { parts: [select] };
}

function text(control, value, id, change) {
  const input = element("input", { type: "text", id, value, maxLength: 120, spellcheck: false });
  input.addEventListener("input", () => change(input.value));
  return { parts: [input] };
}

const KINDS = { slider, colour, choice, text };

export function buildPanel(gallery, panel) {
  let updates = new Map();

  function row(control) {
    const id = `argument-${control.name}`;
    const line = element("div", { className: `argument ${control.kind}` });
    const { parts, update } = KINDS[control.kind](
      control,
      gallery.current[control.name],
      id,
      (value) => gallery.set(control.name, value),
    );
    if (update) updates.set(control.name, update);
    line.append(element("label", { htmlFor: id, textContent: control.name }), ...parts);
    return line;
  }

  gallery.addEventListener("entry", () => {
    updates = new Map();
    panel.replaceChildren(...gallery.entry.controls.map(row));
    if (gallery.entry.controls.length === 0) {
      panel.append(
        element("p", { className: "quiet", textContent: "It has no arguments to play with." }),
      );
    }
  });

  // Values that were changed elsewhere, by the handles on the picture.
  return () => updates.forEach((update, name) => update(gallery.current[name]));
}

export function followModes(gallery, select) {
  const refresh = () => {
    const offered = modesOf(gallery.entry);
    const mode = modeFor(gallery.entry, gallery.settings.mode);
    select.replaceChildren(
      ...offered.map(({ label, c }) => new Option(c, label, false, label === mode.label)),
    );
    select.disabled = offered.length < 2;
  };
  gallery.addEventListener("entry", refresh);
}
