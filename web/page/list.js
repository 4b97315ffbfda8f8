// The functions to pick from: a list with a filter, and a menu where there is no room for it.
import { ENTRIES } from "./table.js";

const element = (name, properties = {}) => Object.assign(document.createElement(name), properties);
const hrefOf = (entry) => `#${entry.name}`;
export const entryOf = (hash) => ENTRIES.find((entry) => hrefOf(entry) === hash);

const grouped = () =>
  Map.groupBy?.(ENTRIES, ({ group }) => group) ??
  ENTRIES.reduce(
    (groups, entry) => groups.set(entry.group, [...(groups.get(entry.group) ?? []), entry]),
    new Map(),
  );

function section(name, entries) {
  const part = element("section");
  const items = element("ul");
  items.append(
    ...entries.map((entry) => {
      const item = element("li");
      item.append(
        element("a", { href: hrefOf(entry), textContent: entry.name.replace(/_/g, "_\u200B") }),
      );
      return item;
    }),
  );
  part.append(element("h2", { textContent: name }), items);
  return part;
}

function options(name, entries) {
  const group = element("optgroup", { label: name });
  group.append(...entries.map((entry) => new Option(entry.name, hrefOf(entry))));
  return group;
}

function moveFocus(list, step) {
  const links = [...list.querySelectorAll("a")].filter((link) => link.offsetParent);
  const at = links.indexOf(document.activeElement);
  links[Math.min(Math.max(at + step, 0), links.length - 1)]?.focus();
}

function filterBy(list, words) {
  for (const part of list.querySelectorAll("section")) {
    const heading = part.querySelector("h2").textContent.toLowerCase();
    let any = false;
    for (const item of part.querySelectorAll("li")) {
      const name = `${heading} ${item.firstChild.hash.toLowerCase()}`;
      item.hidden = !words.every((word) => name.includes(word));
      any ||= !item.hidden;
    }
    part.hidden = !any;
  }
}

export function buildList(gallery, { list, filter, menu }) {
  list.append(...[...grouped()].map(([name, entries]) => section(name, entries)));
  menu.append(...[...grouped()].map(([name, entries]) => options(name, entries)));
  menu.addEventListener("change", () => {
    location.hash = menu.value;
  });
  filter.addEventListener("input", () => filterBy(list, filter.value.toLowerCase().split(/\s+/)));
  filter.addEventListener("keydown", (event) => {
    if (event.key === "ArrowDown") moveFocus(list, 1);
    else if (event.key === "Enter")
      [...list.querySelectorAll("a")].find((link) => link.offsetParent)?.click();
    else return;
    event.preventDefault();
  });
  list.addEventListener("keydown", (event) => {
    const step = { ArrowDown: 1, ArrowUp: -1 }[event.key];
    if (!step) return;
    moveFocus(list, step);
    event.preventDefault();
  });
  gallery.addEventListener("entry", () => {
    menu.value = hrefOf(gallery.entry);
    for (const link of list.querySelectorAll("a")) {
      const current = link.hash === menu.value;
      if (current) link.setAttribute("aria-current", "page");
      else link.removeAttribute("aria-current");
      if (current) link.scrollIntoView({ block: "nearest" });
    }
  });
}
