// Points of a drawing that can be dragged on the picture. The sliders do the same for the keyboard.
import { HEIGHT, WIDTH } from "./library.js";

const clamped = (value, { least, most }) => Math.min(Math.max(Math.round(value), least), most);

export function buildHandles(gallery, layer, moved) {
  let handles = [];

  function place() {
    for (const { node, x, y } of handles) {
      node.style.left = `${(100 * (gallery.current[x.name] + 0.5)) / WIDTH}%`;
      node.style.top = `${(100 * (gallery.current[y.name] + 0.5)) / HEIGHT}%`;
    }
  }

  function drag({ x, y }, event) {
    const box = layer.getBoundingClientRect();
    gallery.set(x.name, clamped(((event.clientX - box.left) / box.width) * WIDTH, x));
    gallery.set(y.name, clamped(((event.clientY - box.top) / box.height) * HEIGHT, y));
    moved();
  }

  function handle([xName, yName]) {
    const node = document.createElement("span");
    const control = (name) => gallery.entry.controls.find((one) => one.name === name);
    const point = { node, x: control(xName), y: control(yName) };
    node.addEventListener("pointerdown", (event) => {
      node.setPointerCapture(event.pointerId);
      event.preventDefault();
    });
    node.addEventListener("pointermove", (event) => {
      if (node.hasPointerCapture(event.pointerId)) drag(point, event);
    });
    return point;
  }

  gallery.addEventListener("entry", () => {
    handles = (gallery.entry.points ?? []).map(handle);
    layer.replaceChildren(...handles.map(({ node }) => node));
  });
  gallery.addEventListener("drawn", place);
}
