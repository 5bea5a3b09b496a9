// The core runs here, away from the page, so that a long calculation never
// freezes it. Each message {id, request} gets {id, answer} back, in order.
/* global importScripts, createMorve */
importScripts('../morve.js');

// morve.wasm sits beside morve.js at the root, one folder above this script.
const ready = createMorve({ locateFile: (file) => '../' + file }).then((core) => (text) => core.ccall('morve_call', 'string', ['string'], [text]));

self.onmessage = async (event) => {
  const { id, request } = event.data;
  let answer;
  try {
    const call = await ready;
    answer = JSON.parse(call(JSON.stringify(request)));
  } catch (error) {
    answer = { error: String(error && error.message ? error.message : error) };
  }
  self.postMessage({ id, answer });
};
