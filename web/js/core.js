// The page's one door to the core: a request to the worker, its answer as a
// promise. While any request is pending the body says so (data-busy), which the
// tests and the status of long commands rely on.
let worker = null;
let next = 1;
const pending = new Map();

function settle(event) {
  const { id, answer } = event.data;
  const done = pending.get(id);
  pending.delete(id);
  if (pending.size === 0) document.body.dataset.busy = '0';
  if (done) done(answer);
}

export function startCore() {
  worker = new Worker('js/worker.js');
  worker.onmessage = settle;
  worker.onerror = (event) => {
    for (const [id, done] of pending) done({ error: event.message || 'worker' });
    pending.clear();
    document.body.dataset.busy = '0';
  };
  document.body.dataset.busy = '0';
}

export function call(request) {
  return new Promise((resolve) => {
    const id = next++;
    pending.set(id, resolve);
    document.body.dataset.busy = '1';
    worker.postMessage({ id, request });
  });
}
