// The pictures helper's modules, reached through one place: a page built
// without one of them still runs, its pictures left empty and its views silent.
const modules = {};

async function load(name) {
  if (!(name in modules)) {
    try {
      modules[name] = await import(`./${name}.js`);
    } catch (error) {
      modules[name] = null;
    }
  }
  return modules[name];
}

export async function loadPictureModules() {
  await Promise.all(['drawing_svg', 'chart_svg', 'report', 'help', 'steps', 'files'].map(load));
}

export function pictureModule(name) {
  return modules[name] || null;
}

function sizeOf(holder) {
  return [parseInt(holder.style.width, 10) || holder.clientWidth || 400,
    parseInt(holder.style.height, 10) || holder.clientHeight || 300];
}

function render(holder, data, moduleName, fn) {
  const key = data ? JSON.stringify(data) : '';
  if (holder.dataset.shows === key) return;
  holder.dataset.shows = key;
  holder.textContent = '';
  const module = pictureModule(moduleName);
  if (!data || !module || !module[fn]) return;
  const [width, height] = sizeOf(holder);
  holder.append(module[fn](data, width, height));
}

export function renderDrawing(holder, drawing) {
  render(holder, drawing, 'drawing_svg', 'drawingToSvg');
}

export function renderChart(holder, chart) {
  render(holder, chart, 'chart_svg', 'chartToSvg');
}
