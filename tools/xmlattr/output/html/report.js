// Filters the findings. Without it the report shows all of them.
"use strict";

const tools = document.querySelector(".tools");
const filter = document.getElementById("filter");
const severities = [...document.querySelectorAll(".tools [data-severity]")];
const status = document.querySelector(".tools output");
const articles = [...document.querySelectorAll("article")];
const groups = [...document.querySelectorAll("#kinds .group, #files .group")];
const places = [...document.querySelectorAll("#files li")];

// Read once, when the first filter is set.
let texts = null;

function textOf(article) {
  const kind = article.parentElement.querySelector("h3").textContent;
  return (kind + " " + article.textContent).toLowerCase();
}

// Every word must be somewhere in the finding, in its places or in the name of its kind.
function apply() {
  const words = filter.value.toLowerCase().split(/\s+/).filter(Boolean);
  const severity = new Set(severities.filter((box) => box.checked).map((box) => box.dataset.severity));
  if (words.length > 0 && !texts) texts = articles.map(textOf);
  const shown = new Set();
  let count = 0;
  articles.forEach((article, i) => {
    const isShown = severity.has(article.dataset.severity) && words.every((word) => texts[i].includes(word));
    article.hidden = !isShown;
    if (!isShown) return;
    shown.add("#" + article.id);
    count += Number(article.dataset.count);
  });
  for (const place of places) place.hidden = !shown.has(place.firstElementChild.getAttribute("href"));
  const isFiltered = shown.size < articles.length;
  for (const group of groups) {
    group.hidden = isFiltered && !group.querySelector("article:not([hidden]), li:not([hidden])");
  }
  status.value = `${count.toLocaleString("en")} of ${status.dataset.all} findings`;
}

function setOpen(isOpen) {
  for (const group of groups) group.open = isOpen;
}

let waiting = 0;
filter.addEventListener("input", () => {
  clearTimeout(waiting);
  waiting = setTimeout(apply, 120);
});
for (const box of severities) box.addEventListener("change", apply);
document.getElementById("open").addEventListener("click", () => setOpen(true));
document.getElementById("close").addEventListener("click", () => setOpen(false));
document.addEventListener("keydown", (event) => {
  if (event.key === "/" && document.activeElement !== filter) {
    event.preventDefault();
    filter.focus();
  }
  if (event.key === "Escape" && document.activeElement === filter) {
    filter.value = "";
    apply();
  }
});
tools.hidden = false;
apply();
