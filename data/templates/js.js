"use strict";

/**
 * Marks the links that point to the current page with the class "current".
 */
function markCurrentLinks(links, address) {
  for (const link of links) {
    link.classList.toggle("current", link.href === address);
  }
}

document.addEventListener("DOMContentLoaded", () => {
  markCurrentLinks(document.querySelectorAll("nav a"), window.location.href);
});
