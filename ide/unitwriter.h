// The C++ unit of a form: its class's header and source, written anew or brought up to date.
#pragma once

#include <string>
#include <vector>

namespace ide {

/// A component, which becomes a field.
struct TUnitField {
  std::string Name;
  /// Its class and the class's ancestors, as C++ names them. A field that is declared as one of
  /// these stays as it is. Empty for a class that C++ names in a way that is not known: its field
  /// is declared by hand.
  std::vector<std::string> Classes;
  std::string Header;
};

struct TUnitHandler {
  std::string Name;
  std::string EventType;  // The name that it is published under.
  std::string Parameters;
};

/// What of a form its unit shows.
struct TUnitForm {
  std::string ClassName;
  std::string Base = "vcl::TForm";
  /// What declares the base class, which has a form file of its own; empty for one of this library.
  std::string BaseHeader;
  std::string UnitName;  // The files' name without folder and ending.
  std::vector<TUnitField> Fields;
  std::vector<TUnitHandler> Handlers;
  /// The form holds what the designer doesn't know: nothing is taken for gone.
  bool Incomplete = false;
  /// What the constructor reads the form file with.
  std::string Loader = "LoadForm";
};

struct TUnitTexts {
  std::string Header, Source;
  /// What the programmer should know: what was kept, and what could not be written.
  std::vector<std::string> Notes;
};

/// The unit's texts, made from its present ones (empty for a unit that is not there yet).
///
/// The class's published table says what the form had before: of the table, the fields and the
/// declarations of handlers, those are added that the form has, and removed that it has no more;
/// nothing else is touched. A new handler gets an empty body at the end of the source. The body of
/// a handler that is gone stays, with its declaration, unless it is empty and nobody calls it; a
/// header that is written anew beside a source declares the methods without a result there.
/// Everything keeps its place, its layout and its line breaks. A handler without parameters is of
/// an event type that is not known; it is only told of.
///
/// Raises EUnitError for texts that hold no such class or table, more than one, or no whole C++;
/// for a source that is missing beside a header; and for names that C++ can't take.
TUnitTexts WriteUnit(const TUnitForm& form, const std::string& header, const std::string& source);

}  // namespace ide
