#pragma once

namespace dao::interne {

class Connexion;

// Gives a connection, and never its file, the tests that our statements have rows judged by. Null is neither true nor
// false, a text is what was looked for as long as the statement runs.
//
//   egal_jet(text, value)            by the base's comparison; a number is compared as one
//   contient_jet(text, values...)    whether INSTR finds the text in one of them; never where one of them is Null
//   commence_jet(text, type, table, column, row id)   whether a value of this type() begins so, letter case aside: what
//                                    is longer than that is not read
//
// The connection breathes among the rows that they judge, so that one statement without a row does not hold the window up:
// they may run other statements on it, as SQLite allows its functions.
void inscritFonctions(Connexion& connexion);

}  // namespace dao::interne
