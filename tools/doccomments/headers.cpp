// Reading classes and their members with the comments above them.
#include "tools/doccomments/headers.h"

#include <cctype>

#include "tools/doccomments/tokens.h"

namespace doccomments {
namespace {

using TKind = TToken::TKind;

std::string Joined(const std::string& scope, const std::string& name) {
  std::string joined = scope;
  if (!scope.empty()) joined += "::";
  return joined += name;
}

/// Goes through a header's declarations. A comment is for the declaration that begins right behind
/// it, and for no other.
class THeaderReader {
 public:
  THeaderReader(std::string_view source, TClassDocs& classes)
      : FTokens(TokensOf(source)), FClasses(classes) {}

  void Read() {
    while (!AtEnd()) Declaration("", nullptr);
  }

 private:
  bool AtEnd() const { return FAt >= FTokens.size(); }
  bool At(std::string_view text) const { return !AtEnd() && FTokens[FAt].Is(text); }
  bool Behind(std::string_view text) const {
    return FAt + 1 < FTokens.size() && FTokens[FAt + 1].Is(text);
  }
  bool AtWord() const { return !AtEnd() && FTokens[FAt].Kind == TKind::Word; }

  /// One declaration of the scope, which is a class's when `owner` is not null.
  void Declaration(const std::string& scope, TClassDoc* owner) {
    std::string comment;
    while (!AtEnd() && FTokens[FAt].IsComment()) comment = FTokens[FAt++].Text;
    if (AtEnd()) return;
    if (At("namespace")) return Namespace(scope);
    if (At("class") || At("struct") || At("union")) return Class(scope, comment, owner);
    if ((At("public") || At("protected") || At("private")) && Behind(":")) {
      FAt += 2;
      return;
    }
    if (At("template")) {
      ++FAt;
      if (At("<")) SkipAngles();
      if (At("class") || At("struct")) return Class(scope, comment, owner);
    }
    Member(comment, owner);
  }

  void Namespace(const std::string& scope) {
    std::string name;
    for (++FAt; !AtEnd() && !At("{") && !At(";") && !At("="); ++FAt) name += FTokens[FAt].Text;
    if (!At("{")) return Member({}, nullptr);
    Body(Joined(scope, name), nullptr);
  }

  /// Everything between braces.
  void Body(const std::string& scope, TClassDoc* owner) {
    ++FAt;
    while (!AtEnd() && !At("}")) Declaration(scope, owner);
    ++FAt;
  }

  /// The name is the last word in front of the ancestors or the body; an export macro may stand in
  /// front of it. What is only declared, or is a type of a member, has no body.
  void Class(const std::string& scope, const std::string& comment, TClassDoc* owner) {
    const std::size_t start = FAt;
    std::string name;
    for (++FAt; AtWord() || At("::"); ++FAt) {
      if (!At("final") && !At("::")) name = FTokens[FAt].Text;
    }
    if (!At(":") && !At("{")) {
      FAt = start + 1;
      return Member(comment, owner);
    }
    TClassDoc read;
    read.Sentence = FirstSentence(comment);
    if (At(":")) read.Bases = Bases();
    const std::string full = Joined(scope, name);
    Body(full, &read);
    FClasses.insert_or_assign(full, std::move(read));
    SkipDeclaration();
  }

  std::vector<std::string> Bases() {
    std::vector<std::string> bases(1);
    for (++FAt; !AtEnd() && !At("{"); ++FAt) {
      if (At("<")) SkipAngles();
      if (At("{")) break;
      if (At(",")) {
        bases.emplace_back();
      } else if (!At("public") && !At("protected") && !At("private") && !At("virtual")) {
        bases.back() += FTokens[FAt].Text;
      }
    }
    return bases;
  }

  /// Remembers the comment for each name that is declared.
  void Member(const std::string& comment, TClassDoc* owner) {
    std::vector<std::string> names = SkipDeclaration();
    std::string sentence = FirstSentence(comment);
    if (!AtEnd() && FTokens[FAt].Kind == TKind::After) {
      sentence = FirstSentence(FTokens[FAt++].Text);
    }
    if (!owner || sentence.empty()) return;
    for (const std::string& name : names) owner->Members.emplace(name, sentence);
  }

  /// Goes behind the declaration; returns the names that it declares: the word in front of the
  /// first parenthesis, or each in front of a comma, an initial value or the end.
  std::vector<std::string> SkipDeclaration() {
    std::vector<std::string> names;
    std::string last;
    bool function = false;
    const auto take = [&] {
      if (!function && !last.empty()) names.push_back(last);
      last.clear();
    };
    while (!AtEnd()) {
      if (At("}")) return names;
      if (At(";")) {
        take();
        ++FAt;
        return names;
      }
      if (At("<") && last != "operator") {
        SkipAngles();
      } else if (At("(")) {
        take();
        function = true;
        SkipNested("(", ")");
      } else if (At("{")) {
        take();
        SkipNested("{", "}");
        if (function && !At(",") && !At("{")) {
          if (At(";")) ++FAt;
          return names;
        }
      } else if (At("=") && last != "operator") {
        take();
        while (!AtEnd() && !At(";") && !At(",")) SkipOne();
      } else {
        if (At(",")) take();
        if (AtWord()) last = FTokens[FAt].Text;
        ++FAt;
      }
    }
    return names;
  }

  void SkipOne() {
    if (At("(")) return SkipNested("(", ")");
    if (At("{")) return SkipNested("{", "}");
    ++FAt;
  }

  void SkipNested(std::string_view open, std::string_view close) {
    int depth = 0;
    do {
      if (At(open)) ++depth;
      if (At(close)) --depth;
      ++FAt;
    } while (!AtEnd() && depth > 0);
  }

  /// The arguments of a template, with what is called or listed in them.
  void SkipAngles() {
    int depth = 0;
    do {
      if (At("<")) ++depth;
      if (At(">")) --depth;
      SkipOne();
    } while (!AtEnd() && depth > 0);
  }

  std::vector<TToken> FTokens;
  TClassDocs& FClasses;
  std::size_t FAt = 0;
};

}  // namespace

void ReadHeader(std::string_view source, TClassDocs& classes) {
  THeaderReader(source, classes).Read();
}

const TClassDoc* FindClass(const TClassDocs& classes, std::string scope, const std::string& name) {
  for (;;) {
    const auto found = classes.find(Joined(scope, name));
    if (found != classes.end()) return &found->second;
    if (scope.empty()) return nullptr;
    const std::size_t end = scope.rfind("::");
    scope.erase(end == std::string::npos ? 0 : end);
  }
}

std::string SentenceOf(const TClassDocs& classes, const std::string& scope,
                       const std::string& className, const std::string& member) {
  const TClassDoc* found = FindClass(classes, scope, className);
  if (!found) return {};
  const auto own = found->Members.find(member);
  if (own != found->Members.end()) return own->second;
  for (const std::string& base : found->Bases) {
    const std::string colons = "::";
    const std::size_t end = base.rfind(colons);
    // An ancestor's own ancestors are named as its namespace sees them.
    const std::string around = end == std::string::npos ? scope : base.substr(0, end);
    std::string sentence = SentenceOf(classes, around, base, member);
    if (!sentence.empty()) return sentence;
  }
  return {};
}

std::string FirstSentence(const std::string& comment) {
  std::string paragraph = comment.substr(0, comment.find('\n'));
  for (std::size_t at = paragraph.find(". "); at != std::string::npos;
       at = paragraph.find(". ", at + 1)) {
    if (std::isupper(static_cast<unsigned char>(paragraph.at(at + 2)))) {
      return paragraph.substr(0, at + 1);
    }
  }
  return paragraph;
}

}  // namespace doccomments
