"use strict";
// Zoom, and the values under the cursor. Without this the picture stands whole.
(() => {
  const data = JSON.parse(document.getElementById("data").textContent);
  const picture = document.getElementById("picture");
  const drawings = Array.from(picture.querySelectorAll("svg"));
  const times = document.getElementById("times");
  const cursor = document.getElementById("cursor");
  const values = document.getElementById("values");
  const whole = Math.max(data.endSec, 0.001);
  const nearest = Math.min(whole, 0.1); // seconds across the picture
  let from = 0;
  let span = whole;

  const filled = (text, ...parts) => text.replace(/%(\d)/g, (place, number) => parts[number - 1]);

  function elapsed(sec) {
    const hundredths = Math.floor(sec * 100 + 1e-6);
    const inDay = Math.floor(hundredths / 100) % 86400;
    const two = number => String(number).padStart(2, "0");
    const time = `${Math.floor(inDay / 3600)}:${two(Math.floor(inDay / 60) % 60)}:${two(inDay % 60)}.` +
      two(hundredths % 100);
    const days = Math.floor(hundredths / 8640000);
    return days === 0 ? time : filled(data.texts.days, days, time);
  }

  function clock(sec) {
    if (data.runAtMs === undefined) { return ""; }
    const time = new Date(data.runAtMs + sec * 1000);
    return isNaN(time) ? "" : time.toISOString().slice(0, 19).replace("T", " ");
  }

  // The last of the rising numbers that is not above the value; -1 for none.
  function lastUpTo(numbers, value, at = number => number) {
    let low = 0;
    let high = numbers.length;
    while (low < high) {
      const middle = (low + high) >> 1;
      if (at(numbers[middle]) <= value) { low = middle + 1; } else { high = middle; }
    }
    return low - 1;
  }

  const isIn = (edges, sec) => { // pairs: from, to
    const at = lastUpTo(edges, sec);
    return at >= 0 && at % 2 === 0;
  };

  function show() {
    for (const drawing of drawings) {
      const height = drawing.viewBox.baseVal.height;
      drawing.setAttribute("viewBox", `${from} 0 ${span} ${height}`);
    }
    Array.from(times.children).forEach((label, part, all) => {
      label.textContent = elapsed(from + span * part / (all.length - 1));
    });
    cursor.hidden = true;
  }

  function zoom(factor, around) {
    const next = Math.min(whole, Math.max(nearest, span * factor));
    const share = (around - from) / span;
    span = next;
    from = Math.min(whole - span, Math.max(0, around - share * span));
    show();
  }

  function openShutters(lanes, sec) {
    return data.shutters.filter((name, shutter) => isIn(lanes[shutter], sec)).join(" ");
  }

  function tell(sec) {
    const parts = [elapsed(sec), clock(sec)];
    if (data.folded.some(block => block[0] <= sec && sec < block[1])) {
      parts.push(data.texts.folded);
    } else {
      const at = lastUpTo(data.steps, sec, step => step[0]);
      if (at >= 0) {
        const [, step, pass, count, group, isHold] = data.steps[at];
        parts.push(filled(data.texts.step, step), count > 1 ? filled(data.texts.pass, pass, count) : "",
          group, isHold ? data.texts.hold : "");
      }
      const open = openShutters(data.planned, sec);
      parts.push(open ? filled(data.texts.open, open) : data.texts.none);
      if (data.sent.length) {
        parts.push(filled(data.texts.sent, openShutters(data.sent, sec) || "–"));
      }
    }
    const names = ["%1", data.texts.sent, data.texts.measured];
    for (const curve of data.curves) {
      const at = lastUpTo(curve.sec, sec);
      if (at >= 0) { parts.push(`${filled(names[curve.kind], curve.name)} ${curve.degC[at].toFixed(1)}`); }
    }
    values.textContent = parts.filter(part => part).join(" · ");
  }

  const box = () => drawings[0].getBoundingClientRect();
  const secAt = x => from + span * Math.min(1, Math.max(0, (x - box().left) / box().width));

  function point(x) {
    const sec = secAt(x);
    cursor.hidden = false;
    cursor.style.left = `${box().left - picture.getBoundingClientRect().left + box().width * (sec - from) / span}px`;
    tell(sec);
  }

  let drag = null;
  picture.addEventListener("wheel", event => {
    event.preventDefault();
    zoom(event.deltaY > 0 ? 1.25 : 0.8, secAt(event.clientX));
    point(event.clientX);
  }, { passive: false });
  picture.addEventListener("pointerdown", event => { drag = { x: event.clientX, from }; });
  window.addEventListener("pointerup", () => { drag = null; });
  picture.addEventListener("pointermove", event => {
    if (drag && event.buttons) {
      from = Math.min(whole - span, Math.max(0, drag.from - (event.clientX - drag.x) / box().width * span));
      show();
    }
    point(event.clientX);
  });
  picture.addEventListener("pointerleave", () => { cursor.hidden = true; });
  document.getElementById("nearer").addEventListener("click", () => zoom(0.5, from + span / 2));
  document.getElementById("farther").addEventListener("click", () => zoom(2, from + span / 2));
  document.getElementById("all").addEventListener("click", () => { from = 0; span = whole; show(); });
  window.addEventListener("beforeprint", () => { from = 0; span = whole; show(); });
})();
