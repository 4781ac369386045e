"use strict";

/** The numbers of the block `id` as a typed array, empty where the page has no such block. */
function numbersOf(id, Type) {
  const block = document.getElementById(id);
  if (!block) {
    return new Type(0);
  }
  const text = atob(block.textContent);
  const bytes = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) {
    bytes[i] = text.charCodeAt(i);
  }
  block.remove();
  return new Type(bytes.buffer);
}

/** The blank-separated numbers of a data attribute. */
function listOf(text) {
  return (text || "").split(" ").filter(word => word !== "").map(Number);
}

/** A number for people: at most `digits` significant ones, without an exponent where that is short. */
function shortNumber(value, digits = 4) {
  return String(Number(value.toPrecision(digits)));
}

/** The value of a custom property of the page's style. */
function colour(name) {
  return getComputedStyle(document.documentElement).getPropertyValue(name).trim();
}

/** A new element with properties, in `parent`. */
function addElement(parent, tag, properties = {}) {
  const element = Object.assign(document.createElement(tag), properties);
  parent.append(element);
  return element;
}

/** The greatest of 1, 2 and 5 times a power of ten that is not above `size`. */
function roundBelow(size) {
  const power = 10 ** Math.floor(Math.log10(size));
  return [5, 2, 1].map(factor => factor * power).find(step => step <= size) || power;
}
