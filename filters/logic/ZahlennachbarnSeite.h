#pragma once

#include "filters/logic/Zahlennachbarn.h"

#include <functional>

/// Gives the page with the hits of a search, ISO 8859-1, to `ausgabe` piece by piece: its head, a row each, its end.
/// False once `ausgabe` is; the page then has no end.
bool schreibeNachbarnSeite(const Nachbarsuche& suche, const std::function<bool(std::string_view bytes)>& ausgabe);

/// The whole page.
std::string nachbarnSeite(const Nachbarsuche& suche);
