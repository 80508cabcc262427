'use strict';
// Shows one paragraph at a time. Without it the page is the whole book, one paragraph after another.
document.documentElement.classList.add('js');

document.addEventListener('DOMContentLoaded', () => {
  const element = id => document.getElementById(id);
  const key = 'book-' + document.body.dataset.book;
  const status = element('status');

  // What the browser keeps, if it allows that: everything works without.
  const load = () => {
    try {
      return JSON.parse(localStorage.getItem(key)) || {};
    } catch (refused) {
      return {};
    }
  };
  const save = () => {
    try {
      localStorage.setItem(key, JSON.stringify(state));
    } catch (refused) {
      element('unkept').hidden = false;
    }
  };

  const isPlace = id => typeof id === 'string' && /^(start|p\d+)$/.test(id) && element(id) !== null;
  const isWay = way => Array.isArray(way) && way.length > 0 && way.every(isPlace);
  const kept = load();
  const state = {
    way: isWay(kept.way) ? kept.way : ['start'],
    at: 0,
    marks: Array.isArray(kept.marks) ? kept.marks.filter(mark => mark && isWay(mark.way)) : [],
    size: Number.isInteger(kept.size) ? Math.min(Math.max(kept.size, 75), 300) : 100,
    theme: ['light', 'dark'].includes(kept.theme) ? kept.theme : 'auto',
    notes: typeof kept.notes === 'string' ? kept.notes : '',
  };
  if (isWay(kept.way) && Number.isInteger(kept.at))
    state.at = Math.min(Math.max(kept.at, 0), state.way.length - 1);

  const nameOf = id => id === 'start' ? status.dataset.start : id.slice(1);
  const say = (text, value) => { status.textContent = text.replace('%', value); };
  const button = (text, action) => {
    const made = document.createElement('button');
    made.type = 'button';
    made.textContent = text;
    made.addEventListener('click', action);
    return made;
  };
  const item = (...buttons) => {
    const made = document.createElement('li');
    made.append(...buttons);
    return made;
  };

  const showWay = () => {
    element('back').disabled = state.at === 0;
    element('forward').disabled = state.at + 1 === state.way.length;
    element('steps').replaceChildren(...state.way.map((id, index) => {
      const step = button(nameOf(id), () => go(index));
      if (index === state.at)
        step.setAttribute('aria-current', 'step');
      step.setAttribute('aria-pressed', index === state.at);
      return item(step);
    }));
  };

  const show = focus => {
    for (const section of document.querySelectorAll('main > .here'))
      section.classList.remove('here');
    const section = element(state.way[state.at]);
    section.classList.add('here');
    if (section.classList.contains('end') && element('after') !== null)
      element('after').classList.add('here');
    status.textContent = '';
    showWay();
    scrollTo(0, 0);
    if (focus)
      section.querySelector('h1, h2').focus({preventScroll: true});
    save();
  };

  // The browser's own back and forward follow where it lets a page add to its history.
  const remember = method => {
    try {
      history[method]({at: state.at}, '', '#' + state.way[state.at]);
    } catch (refused) {
      // Then the page's own buttons are the ones that work.
    }
  };
  const go = index => {
    state.at = index;
    remember('replaceState');
    show(true);
  };
  const follow = id => {
    state.way = state.way.slice(0, state.at + 1).concat(id);
    ++state.at;
    remember('pushState');
    show(true);
  };
  const take = way => {
    state.way = way.slice();
    state.at = way.length - 1;
    remember('pushState');
    show(true);
  };

  document.addEventListener('click', event => {
    const link = event.target.closest('main a[href^="#"]');
    const plain = event.button === 0 && !event.ctrlKey && !event.metaKey && !event.shiftKey && !event.altKey;
    if (link === null || !plain || !isPlace(link.hash.slice(1)))
      return;
    event.preventDefault();
    follow(link.hash.slice(1));
  });
  addEventListener('popstate', event => {
    const at = event.state && event.state.at;
    const id = location.hash.slice(1) || 'start';
    if (Number.isInteger(at) && state.way[at] === id) {
      state.at = at;
      show(true);
    } else if (isPlace(id) && id !== state.way[state.at]) {
      state.way = state.way.slice(0, state.at + 1).concat(id);
      ++state.at;
      remember('replaceState');
      show(true);
    }
  });

  const move = by => {
    const index = state.at + by;
    if (index >= 0 && index < state.way.length)
      go(index);
  };
  element('back').addEventListener('click', () => move(-1));
  element('forward').addEventListener('click', () => move(1));
  element('restart').addEventListener('click', () => take(['start']));
  document.addEventListener('keydown', event => {
    const typing = event.target.closest('input, textarea') !== null;
    if (typing || event.ctrlKey || event.altKey || event.metaKey || event.shiftKey)
      return;
    if (event.key === 'ArrowLeft')
      move(-1);
    else if (event.key === 'ArrowRight')
      move(1);
    else if (event.key === 'Escape')
      openPanel(null);
  });
  element('jump').addEventListener('submit', event => {
    event.preventDefault();
    const number = element('number').value.trim();
    if (/^\d+$/.test(number) && isPlace('p' + Number(number))) {
      element('number').value = '';
      openPanel(null);
      follow('p' + Number(number));
    } else {
      say(status.dataset.missing, number);
    }
  });

  const panelButtons = document.querySelectorAll('[data-panel]');
  const openPanel = name => {
    status.textContent = '';
    for (const opener of panelButtons) {
      const opens = opener.dataset.panel === name;
      opener.setAttribute('aria-expanded', opens);
      element(opener.dataset.panel).hidden = !opens;
    }
  };
  for (const opener of panelButtons)
    opener.addEventListener('click', () =>
      openPanel(opener.getAttribute('aria-expanded') === 'true' ? null : opener.dataset.panel));

  const wordsOf = id => {
    const text = element(id).textContent.trim().replace(/\s+/g, ' ');
    const words = text.slice(0, 60);
    return words.length < text.length ? words + '…' : words;
  };
  const showMarks = () => {
    element('kept').replaceChildren(...state.marks.map((mark, index) => {
      const remove = button('×', () => {
        state.marks.splice(index, 1);
        save();
        showMarks();
        element('mark').focus();
      });
      const place = mark.way[mark.way.length - 1];
      remove.setAttribute('aria-label', status.dataset.remove.replace('%', nameOf(place)));
      return item(button(wordsOf(place), () => {
        openPanel(null);
        take(mark.way);
      }), remove);
    }));
  };
  element('mark').addEventListener('click', () => {
    state.marks.push({way: state.way.slice(0, state.at + 1)});
    save();
    showMarks();
    say(status.dataset.marked, nameOf(state.way[state.at]));
  });

  const showLook = () => {
    document.documentElement.style.fontSize = state.size + '%';
    document.documentElement.dataset.theme = state.theme;
    for (const choice of document.querySelectorAll('button[data-theme]'))
      choice.setAttribute('aria-pressed', choice.dataset.theme === state.theme);
    element('smaller').disabled = state.size === 75;
    element('larger').disabled = state.size === 300;
  };
  const resize = by => {
    state.size = Math.min(Math.max(state.size + by, 75), 300);
    save();
    showLook();
  };
  element('smaller').addEventListener('click', () => resize(-25));
  element('larger').addEventListener('click', () => resize(25));
  for (const choice of document.querySelectorAll('button[data-theme]'))
    choice.addEventListener('click', () => {
      state.theme = choice.dataset.theme;
      save();
      showLook();
    });

  if (element('sheet') !== null) {
    element('notes').value = state.notes;
    element('notes').addEventListener('input', () => {
      state.notes = element('notes').value;
      save();
    });
    element('die').addEventListener('click', () => {
      // A new element is told even when the number is the last one.
      const result = document.createElement('span');
      result.textContent = 1 + Math.floor(Math.random() * 6);
      element('thrown').replaceChildren(result);
    });
  }

  // An address with a paragraph in it goes there.
  const asked = location.hash.slice(1);
  if (isPlace(asked) && asked !== state.way[state.at]) {
    state.way = state.way.slice(0, state.at + 1).concat(asked);
    ++state.at;
  }
  remember('replaceState');
  showMarks();
  showLook();
  show(false);
});
