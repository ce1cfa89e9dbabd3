#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Lines of a page, UTF-8, without line ends.
using HtmlZeilen = std::vector<std::string>;

/// The lines of several blocks, one behind the other.
HtmlZeilen verbinde(std::initializer_list<HtmlZeilen> bloecke);

/// The house look: dark on the screen, white on paper. Green (#008000) with yellow or white text marks a head, red a
/// maximum, cyan a minimum; white cells hold numbers and `pre` text.

/// The `@media screen` block and the `@media print` block. `hoehe` and `breite` are those of a `div.scroll` on the
/// screen, as CSS lengths; on paper it shows all it holds.
HtmlZeilen hausStil(std::string_view hoehe = "360px", std::string_view breite = "50%");

/// The eight `scrollbar-...` declarations of a body.
HtmlZeilen rollbalkenFarben();
/// What a scroll bar's thumb looks like under the mouse and while it is drawn.
HtmlZeilen rollbalkenDaumen();

/// `table.tabelle1`: rows of numbers on green with rows of values on white below them.
HtmlZeilen tabelle1Stil();
/// `table.group`: a green head over two columns of 40% and 60%.
HtmlZeilen groupStil();
/// `table.gu`: a green head over two columns of one width.
HtmlZeilen guStil();
/// `table.minmax`: the legend of the red and the cyan cells.
HtmlZeilen minmaxStil();
