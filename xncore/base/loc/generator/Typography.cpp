#include "Typography.h"

#include "Utf8.h"

#include <algorithm>

namespace locgen {

namespace {

constexpr char32_t noBreakSpace = 0xA0;
constexpr char32_t none = 0; // what lies before the first and after the last character

// Double quotation marks of any language; one that is not the language's own is out of place.
constexpr std::u32string_view anyQuotationMark = U"\"\u201C\u201D\u201E\u201F\u00AB\u00BB";
// Chinese punctuation that carries its own spacing.
constexpr std::u32string_view fullWidthPunctuation =
    U"\u3001\u3002\uFF0C\uFF1A\uFF1B\uFF1F\uFF01\uFF08\uFF09\u201C\u201D\u3010\u3011";
constexpr std::u32string_view halfWidth = U",.:;?!";
constexpr std::u32string_view fullWidth = U"\uFF0C\u3002\uFF1A\uFF1B\uFF1F\uFF01";
// What may follow a Chinese mnemonic: an ellipsis, the arrow of a Next button, a colon.
constexpr std::u32string_view mnemonicTails[] = {U"", U"...", U"\u2026", U" >", U"\uFF1A"};

bool isOneOf(char32_t c, std::u32string_view set) {
  return c != none && set.find(c) != std::u32string_view::npos;
}

std::string quoted(char32_t c) {
  return "'" + toUtf8(c) + "'";
}

class Scan {
public:
  Scan(const LanguageConventions& conventions, const std::string& text)
      : conventions_(conventions), text_(codePoints(text)), inTag_(text_.size(), false) {
    // A tag opens with '<' and a letter, '/' or '!', and runs to its '>'.
    for (std::size_t i = 0; i + 1 < text_.size(); ++i) {
      char32_t next = text_[i + 1];
      if (text_[i] != '<' || !(isLetterOrDigit(next) || next == '/' || next == '!'))
        continue;
      std::size_t close = text_.find('>', i);
      if (close == std::u32string::npos)
        break;
      std::fill(inTag_.begin() + i, inTag_.begin() + close + 1, true);
      i = close;
    }
  }

  std::vector<std::string> run(const std::string& english) {
    if (!conventions_.quotes.empty())
      checkQuotationMarks();
    if (!conventions_.fullWidth)
      checkPunctuationSpacing();
    if (conventions_.invertedMarks)
      checkInvertedMarks();
    if (conventions_.fullWidth) {
      checkFullWidth();
      checkChineseMnemonic(codePoints(english));
    }
    return problems_;
  }

private:
  char32_t at(std::size_t i) const { return i < text_.size() ? text_[i] : none; }
  char32_t before(std::size_t i) const { return i > 0 ? text_[i - 1] : none; }

  void report(const std::string& message) {
    if (std::find(problems_.begin(), problems_.end(), message) == problems_.end())
      problems_.push_back(message);
  }

  // Sentence punctuation, as against the colon of "12:00" or "NAME:PERMISSIONS":
  // what follows it is the end, a space or a closing mark.
  bool endsAPhrase(std::size_t i) const {
    char32_t next = at(i + 1);
    return next == none || isSpace(next) || isOneOf(next, U"\u00BB)]?!");
  }

  void checkQuotationMarks() {
    const std::string marks = quotationExample(conventions_);
    const char32_t open = conventions_.quotes[0], close = conventions_.quotes[1];
    const bool inner = conventions_.innerQuotes.size() == 2;
    int depth = 0;
    for (std::size_t i = 0; i < text_.size(); ++i) {
      char32_t c = text_[i];
      if (inTag_[i])
        continue;
      if (c == '"') {
        report("straight quotation mark '\"': quote with " + marks);
      } else if (c == '\'') {
        // An apostrophe stands between letters ("l'utilisateur", "d'%S").
        if (!isLetterOrDigit(before(i)) || !(isLetterOrDigit(at(i + 1)) || at(i + 1) == '%'))
          report("straight quotation mark \"'\": quote with " + marks);
      } else if (depth == 0 && c == open) {
        depth = 1;
        checkSpaceInside(at(i + 1), c, "after");
      } else if (depth == 1 && c == close) {
        depth = 0;
        checkSpaceInside(before(i), c, "before");
      } else if (inner && depth == 1 && c == conventions_.innerQuotes[0]) {
        depth = 2;
      } else if (inner && depth == 2 && c == conventions_.innerQuotes[1]) {
        depth = 1;
      } else if (isOneOf(c, anyQuotationMark)) {
        report("quotation mark " + quoted(c) + " out of place: quote with " + marks);
      }
    }
    if (depth != 0)
      report("quotation not closed: quote with " + marks);
  }

  void checkSpaceInside(char32_t neighbour, char32_t mark, const char* side) {
    if (conventions_.spacedPunctuation) {
      if (neighbour != noBreakSpace)
        report(quoted(mark) + " needs a no-break space (U+00A0) " + side + " it");
    } else if (isSpace(neighbour)) {
      report("no space " + std::string(side) + " " + quoted(mark));
    }
  }

  // French puts a no-break space before : ; ? !, the other languages no space at all.
  void checkPunctuationSpacing() {
    for (std::size_t i = 0; i < text_.size(); ++i) {
      char32_t c = text_[i];
      if (inTag_[i] || !isOneOf(c, U":;?!") || !endsAPhrase(i))
        continue;
      char32_t previous = before(i);
      if (!conventions_.spacedPunctuation) {
        if (isSpace(previous))
          report("no space before " + quoted(c));
      } else if (previous == noBreakSpace || (isOneOf(c, U"?!") && isOneOf(previous, U"?!"))) {
        continue;
      } else if (previous == ' ') {
        report("ordinary space before " + quoted(c) + ": make it a no-break space (U+00A0)");
      } else {
        report(quoted(c) + " needs a no-break space (U+00A0) before it");
      }
    }
  }

  void checkInvertedMarks() {
    int questions = 0, exclamations = 0;
    for (std::size_t i = 0; i < text_.size(); ++i) {
      char32_t c = text_[i];
      if (inTag_[i])
        continue;
      if (c == U'\u00BF')
        ++questions;
      else if (c == U'\u00A1')
        ++exclamations;
      else if (c == '?' && endsAPhrase(i))
        closeInverted(questions, "'?' without its opening '\u00BF'");
      else if (c == '!' && endsAPhrase(i))
        closeInverted(exclamations, "'!' without its opening '\u00A1'");
    }
  }

  void closeInverted(int& open, const char* problem) {
    if (open == 0)
      report(problem);
    else
      --open;
  }

  void checkFullWidth() {
    for (std::size_t i = 0; i < text_.size(); ++i) {
      char32_t c = text_[i], previous = before(i), next = at(i + 1);
      if (inTag_[i])
        continue;
      std::size_t half = halfWidth.find(c);
      if (half != std::u32string_view::npos) {
        bool ellipsis = c == '.' && (previous == '.' || next == '.');
        if (!ellipsis && (isIdeograph(previous) || isIdeograph(next) || next == none))
          report("half-width " + quoted(c) + " in Chinese text: write " + quoted(fullWidth[half]));
      } else if ((isOneOf(c, U"([") && isIdeograph(next)) ||
                 (isOneOf(c, U")]") && isIdeograph(previous))) {
        report("half-width bracket " + quoted(c) +
               " around Chinese text: write \uFF08\u2026\uFF09");
      } else if (c == ' ' &&
                 (isOneOf(previous, fullWidthPunctuation) || isOneOf(next, fullWidthPunctuation))) {
        report("space beside full-width punctuation " +
               quoted(isOneOf(previous, fullWidthPunctuation) ? previous : next));
      }
    }
  }

  // "刷新参数(&P)": the English mark's letter in upper case, in brackets, at the end.
  void checkChineseMnemonic(const std::u32string& english) {
    std::vector<std::size_t> englishMarks = markPositions(english);
    if (englishMarks.size() != 1 || englishMarks[0] + 1 >= english.size())
      return;
    char32_t letter = english[englishMarks[0] + 1];
    if (letter >= 'a' && letter <= 'z')
      letter -= 'a' - 'A';
    const std::u32string expected = U"(&" + std::u32string(1, letter) + U")";
    for (std::size_t mark : markPositions(text_)) {
      std::size_t start = mark > 0 ? mark - 1 : 0;
      std::u32string_view tail(text_);
      bool atEnd = text_.compare(start, expected.size(), expected) == 0 &&
                   std::find(std::begin(mnemonicTails), std::end(mnemonicTails),
                             tail.substr(start + expected.size())) != std::end(mnemonicTails);
      if (!atEnd) {
        std::string form;
        for (char32_t c : expected)
          form += toUtf8(c);
        report("a Chinese mnemonic is \"" + form + "\" at the end of the text");
      }
    }
  }

  const LanguageConventions& conventions_;
  std::u32string text_;
  std::vector<bool> inTag_;
  std::vector<std::string> problems_;
};

} // namespace

std::vector<std::size_t> markPositions(const std::u32string& text) {
  std::vector<std::size_t> marks;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '&')
      continue;
    if (i + 1 < text.size() && text[i + 1] == '&')
      ++i;
    else
      marks.push_back(i);
  }
  return marks;
}

std::vector<std::string> typographyProblems(const LanguageConventions& conventions,
                                            const std::string& text, const std::string& english) {
  return Scan(conventions, text).run(english);
}

} // namespace locgen
