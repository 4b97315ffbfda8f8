// A photograph of the user, dropped onto the picture or picked from a file.
import { HEIGHT, WIDTH } from "./library.js";

// Covers the whole picture; what is too much of one side is cut off evenly.
async function wordsOf(file) {
  const bitmap = await createImageBitmap(file);
  const scale = Math.max(WIDTH / bitmap.width, HEIGHT / bitmap.height);
  const [width, height] = [bitmap.width * scale, bitmap.height * scale];
  const canvas = Object.assign(document.createElement("canvas"), { width: WIDTH, height: HEIGHT });
  const context = canvas.getContext("2d", { willReadFrequently: true });
  context.imageSmoothingQuality = "high";
  context.fillRect(0, 0, WIDTH, HEIGHT);
  context.drawImage(bitmap, (WIDTH - width) / 2, (HEIGHT - height) / 2, width, height);
  bitmap.close();
  const { data } = context.getImageData(0, 0, WIDTH, HEIGHT);
  return Uint32Array.from(
    { length: WIDTH * HEIGHT },
    (_, at) =>
      (0xff000000 | (data[4 * at] << 16) | (data[4 * at + 1] << 8) | data[4 * at + 2]) >>> 0,
  );
}

export function acceptPhotos(gallery, { stage, picker, say }) {
  async function use(file) {
    if (!file) return;
    try {
      gallery.usePhoto(await wordsOf(file));
      say(`Drawing over ${file.name}.`);
    } catch {
      say(`${file.name} is not a picture that this browser can read.`);
    }
  }

  picker.addEventListener("change", () => use(picker.files[0]));
  document.addEventListener("dragover", (event) => {
    event.preventDefault();
    stage.classList.add("awaiting");
  });
  document.addEventListener("dragleave", (event) => {
    if (!event.relatedTarget) stage.classList.remove("awaiting");
  });
  document.addEventListener("drop", (event) => {
    event.preventDefault();
    stage.classList.remove("awaiting");
    use(event.dataTransfer.files[0]);
  });
}
