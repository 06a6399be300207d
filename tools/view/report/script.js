'use strict';
// The page is complete without this script. It folds the messages, draws their layouts, searches and
// switches the colours.
const root = document.documentElement;
root.className = 'js loading';

const Cell = {width: 64, height: 22, left: 34, top: 16};

function element(name, attributes, text) {
  const made = document.createElementNS('http://www.w3.org/2000/svg', name);
  for (const key in attributes) made.setAttribute(key, attributes[key]);
  if (text !== undefined) made.textContent = text;
  return made;
}

// The index of a signal in its message: a is 0, z is 25, aa is 26.
function indexOf(letters) {
  let index = 0;
  for (const letter of letters) index = index * 26 + letter.charCodeAt(0) - 96;
  return index - 1;
}

// Runs of bits, cut at the ends of bytes.
function pieces(runs) {
  const found = [];
  let at = 0;
  for (const [, length, owner, overlap] of runs.matchAll(/(\d+)([a-z]+|\.)(!?)/g)) {
    const end = at + Number(length);
    while (at < end) {
      const size = Math.min(end - at, 8 - at % 8);
      found.push({at, size, signal: owner === '.' ? -1 : indexOf(owner), overlap: overlap !== ''});
      at += size;
    }
  }
  return found;
}

// A byte is a row, its highest bit on the left.
function draw(runs, signals, bytes, label) {
  const parts = pieces(runs);
  const last = parts[parts.length - 1];
  const rows = Math.floor((last.at + last.size - 1) / 8) + 1;
  const width = Cell.left + 8 * Cell.width + 2;
  const height = Cell.top + rows * Cell.height + 2;
  const svg = element('svg', {viewBox: `0 0 ${width} ${height}`, width, height, role: 'img', 'aria-label': label});
  for (let bit = 0; bit < 8; ++bit) {
    const x = Cell.left + (7.5 - bit) * Cell.width;
    svg.append(element('text', {class: 'k', x, y: 11, 'text-anchor': 'middle'}, bit));
  }
  for (let row = 0; row < rows; ++row) {
    const y = Cell.top + row * Cell.height;
    svg.append(element('text', {class: 'k', x: Cell.left - 8, y: y + 15, 'text-anchor': 'end'}, row));
  }
  let grid = '';
  for (let row = 0; row <= rows; ++row) grid += `M${Cell.left} ${Cell.top + row * Cell.height}h${8 * Cell.width}`;
  for (let bit = 0; bit <= 8; ++bit) grid += `M${Cell.left + bit * Cell.width} ${Cell.top}v${rows * Cell.height}`;
  svg.append(element('path', {class: 'f', d: grid}));
  for (const {at, size, signal, overlap} of parts) {
    if (signal < 0) continue;
    const x = Cell.left + (8 - at % 8 - size) * Cell.width;
    const y = Cell.top + Math.floor(at / 8) * Cell.height;
    const w = size * Cell.width;
    const {name, start} = signals[signal];
    const group = element('g', {});
    group.append(element('title', {}, name));
    group.append(element('rect', {class: 't' + signal % 4, x, y, width: w, height: Cell.height}));
    const most = Math.floor((w - 10) / 6.2);
    group.append(element('text', {x: x + 5, y: y + 15}, name.length > most ? name.slice(0, most - 1) + '\u2026' : name));
    if (overlap) group.append(element('rect', {class: 'x', x: x + 1.5, y: y + 1.5, width: w - 3, height: Cell.height - 3}));
    if (start >= at && start < at + size) {
      group.append(element('circle', {class: 's', cx: Cell.left + (8 - start % 8) * Cell.width - 7, cy: y + 4, r: 1.9}));
    }
    svg.append(group);
  }
  if (bytes < rows) {
    const y = Cell.top + bytes * Cell.height;
    svg.append(element('line', {class: 'e', x1: Cell.left, x2: width - 2, y1: y, y2: y}));
  }
  return svg;
}

function cellsOf(names) {
  const row = document.createElement('tr');
  for (const name of names) {
    const cell = document.createElement('th');
    cell.scope = 'col';
    cell.textContent = name;
    row.append(cell);
  }
  return row;
}

// What all messages have in common is left out of the page, to keep it small: the captions and heads
// of the tables of a message.
function completeTables(message) {
  for (const table of message.panel.querySelectorAll('table')) {
    const isValues = table.className === 'v';
    for (const row of table.rows) row.cells[0].scope = 'row';
    const caption = table.caption ?? table.createCaption();
    caption.textContent = isValues ? 'Values of ' + caption.textContent : 'Signals of ' + message.name;
    table.createTHead().append(cellsOf(isValues ? ['Value', 'Meaning'] :
      ['Signal', 'Start bit, type', 'Factor, offset', 'Range, unit', 'Receivers', 'Notes']));
  }
}

function drawLayouts(message) {
  const signals = message.rows.map(row => ({
    name: row.cells[0].firstChild ? row.cells[0].firstChild.data.trim() : '', start: parseInt(row.cells[1].textContent)}));
  const bytes = Number(message.head.cells[4].textContent);
  for (const place of message.panel.querySelectorAll('[data-l]')) {
    const value = place.dataset.m;
    const multiplexer = value === undefined ? '' : ' with the multiplexer value ' + value;
    const label = `Layout of ${message.name}${multiplexer}. Its table of signals has the same start bits and lengths.`;
    const picture = draw(place.dataset.l, signals, bytes, label);
    const caption = document.createElement('figcaption');
    caption.textContent = `Layout${multiplexer}: bytes downwards, bits across, a dot at each start bit` +
      (picture.querySelector('.x') ? ', dashes around bits of several signals' : '') +
      (picture.querySelector('.e') ? ', a line at the end of the message' : '');
    const figure = document.createElement('figure');
    figure.append(caption, picture);
    place.replaceWith(figure);
  }
}

function setOpen(message, open) {
  message.isOpen = open;
  message.button.setAttribute('aria-expanded', open);
  if (open) {
    if (!message.isComplete) {
      message.isComplete = true;
      completeTables(message);
      drawLayouts(message);
    }
    message.panel.removeAttribute('hidden');
  } else {
    // The browser's own search finds the text, too, and unfolds the message.
    message.panel.setAttribute('hidden', 'until-found');
  }
}

// The texts that a search looks at, made when they are first needed.
function indexText(message) {
  if (message.text !== undefined) return;
  message.signals = message.rows.map(row => ({row, text: row.textContent.toLowerCase()}));
  const others = message.panel.querySelectorAll('p,.v');
  message.text = [...message.head.cells, ...others].map(each => each.textContent).join(' ').toLowerCase();
}

// A message is a hit if it has all words, a signal if it has them together with its message, but one
// of them itself.
function matchMessage(message, words) {
  indexText(message);
  const hasAll = words.every(word => message.text.includes(word));
  let count = 0;
  for (const signal of message.signals) {
    const own = words.filter(word => signal.text.includes(word));
    const isHit = words.length > 0 && own.length > 0 &&
      words.every(word => own.includes(word) || message.text.includes(word));
    signal.row.classList.toggle('hit', isHit);
    signal.row.hidden = words.length > 0 && !hasAll && !isHit;
    count += isHit ? 1 : 0;
  }
  message.body.hidden = words.length > 0 && !hasAll && count === 0;
  return {hasAll, count};
}

addEventListener('DOMContentLoaded', () => {
  const byId = id => document.getElementById(id);
  const messages = [...document.querySelectorAll('.messages > tbody')].map(body => {
    const head = body.rows[0];
    const place = body.rows[1].cells[0];
    const panel = document.createElement('div');
    panel.append(...place.childNodes);
    place.append(panel);
    const button = document.createElement('button');
    return {body, head, panel, button, name: head.cells[0].textContent, rows: [...panel.querySelector('table').rows]};
  });
  const signalCount = messages.reduce((sum, message) => sum + message.rows.length, 0);
  const hits = byId('hits');
  const whole = hits.textContent;

  messages.forEach((message, index) => {
    message.panel.id = 'message' + index;
    message.button.type = 'button';
    message.button.textContent = message.name;
    message.head.cells[0].replaceChildren(message.button);
    message.head.cells[0].scope = 'row';
    message.button.setAttribute('aria-controls', message.panel.id);
    message.button.addEventListener('click', () => setOpen(message, !message.isOpen));
    message.panel.addEventListener('beforematch', () => setOpen(message, true));
    setOpen(message, false);
  });
  root.className = 'js';

  const input = byId('search');
  let unfolded = [];
  const search = () => {
    const words = input.value.toLowerCase().split(/\s+/).filter(word => word !== '');
    unfolded.forEach(message => setOpen(message, false));
    unfolded = [];
    let messageHits = 0;
    let signalHits = 0;
    const withSignals = [];
    for (const message of messages) {
      const {hasAll, count} = matchMessage(message, words);
      messageHits += hasAll || count > 0 ? 1 : 0;
      signalHits += count;
      if (count > 0) withSignals.push(message);
    }
    // A few hits are shown at once.
    if (withSignals.length <= 5) {
      unfolded = withSignals.filter(message => !message.isOpen);
      unfolded.forEach(message => setOpen(message, true));
    }
    hits.textContent = words.length === 0 ? whole :
      `${messageHits} of ${messages.length} messages, ${signalHits} of ${signalCount} signals`;
  };
  let waiting;
  input.addEventListener('input', () => {
    clearTimeout(waiting);
    waiting = setTimeout(search, 100);
  });
  if (input.value !== '') search();

  const causes = [...document.querySelectorAll('details')];
  byId('unfold').addEventListener('click', () => messages.forEach(each => each.body.hidden || setOpen(each, true)));
  byId('fold').addEventListener('click', () => messages.forEach(each => setOpen(each, false)));

  const dark = byId('dark');
  const system = matchMedia('(prefers-color-scheme: dark)');
  const isDark = () => (root.dataset.theme ?? (system.matches ? 'dark' : 'light')) === 'dark';
  const showTheme = () => dark.setAttribute('aria-pressed', isDark());
  dark.addEventListener('click', () => {
    root.dataset.theme = isDark() ? 'light' : 'dark';
    showTheme();
  });
  system.addEventListener('change', showTheme);
  showTheme();

  // Paper cannot be unfolded.
  let folded = [];
  addEventListener('beforeprint', () => {
    folded = [...messages.filter(each => !each.isOpen && !each.body.hidden), ...causes.filter(each => !each.open)];
    folded.forEach(each => each.panel ? setOpen(each, true) : each.open = true);
  });
  addEventListener('afterprint', () => {
    folded.forEach(each => each.panel ? setOpen(each, false) : each.open = false);
    folded = [];
  });
});
