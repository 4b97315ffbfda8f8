import { Gallery, formatNamed } from "./gallery.js";
import { buildHandles } from "./handles.js";
import { openLibrary } from "./library.js";
import { buildList, entryOf } from "./list.js";
import { buildPanel, followModes } from "./panel.js";
import { acceptPhotos } from "./photo.js";
import { BACKDROP_NAMES, ENTRIES, modeFor } from "./table.js";

const find = (id) => document.getElementById(id);
const say = (words) => {
  find("status").textContent = words;
};

function followSettings(gallery) {
  for (const radio of document.querySelectorAll("input[name=format]")) {
    radio.addEventListener("change", () => gallery.configure({ format: formatNamed(radio.value) }));
  }
  const [mode, backdrop, inkAlpha] = [find("mode"), find("backdrop"), find("ink-alpha")];
  const showAlpha = () => {
    find("ink").hidden = modeFor(gallery.entry, gallery.settings.mode).label !== "alpha";
  };
  backdrop.append(...BACKDROP_NAMES.map((name) => new Option(name, name)));
  mode.addEventListener("change", () => {
    gallery.configure({ mode: mode.value });
    showAlpha();
  });
  backdrop.addEventListener("change", () => gallery.configure({ backdrop: backdrop.value }));
  inkAlpha.addEventListener("input", () => {
    find("ink-alpha-value").value = inkAlpha.value;
    gallery.configure({ inkAlpha: Number(inkAlpha.value) });
  });
  gallery.addEventListener("entry", () => {
    backdrop.value = gallery.settings.backdrop;
    showAlpha();
  });
}

function followTexts(gallery) {
  gallery.addEventListener("entry", () => {
    const { name, note } = gallery.entry;
    find("name").textContent = name;
    find("note").textContent = note ?? "";
    find("note").hidden = !note;
    find("contract").textContent = gallery.library.functions.get(name).comment;
    document.title = `${name} \u2013 Brisal`;
    find("picture").setAttribute("aria-label", `What ${name} draws`);
  });
  gallery.addEventListener("drawn", () => {
    find("code").textContent = gallery.callText();
  });
  const copy = async (text, what) => {
    try {
      await navigator.clipboard.writeText(text);
      say(`${what} copied.`);
    } catch {
      say("The browser does not let this page copy; select the code instead.");
    }
  };
  find("copy-call").addEventListener("click", () => copy(gallery.callText(), "The call is"));
  find("copy-program").addEventListener("click", () =>
    copy(gallery.program(), "A whole C program is"),
  );
}

async function start() {
  const library = await openLibrary();
  const gallery = new Gallery(library, find("picture"));
  buildList(gallery, { list: find("list"), filter: find("filter"), menu: find("menu") });
  const updatePanel = buildPanel(gallery, find("panel"));
  followModes(gallery, find("mode"));
  followSettings(gallery);
  followTexts(gallery);
  buildHandles(gallery, find("handles"), updatePanel);
  acceptPhotos(gallery, { stage: find("stage"), picker: find("photo"), say });
  find("reset").addEventListener("click", () => gallery.reset());
  find("version").textContent = library.version;
  const show = () => gallery.show(entryOf(location.hash) ?? entryOf("#BRSL_ShadeBox"));
  addEventListener("hashchange", show);
  show();
  document.body.classList.add("ready");
  return gallery;
}

export const gallery = start();
export { ENTRIES };
gallery.catch((error) => say(`The gallery cannot start: ${error.message}`));
