// plat::Markup: the small rich-text language of the system's dialogs, About
// boxes and help texts, a subset of HTML. A parser turns a text into paragraphs
// of styled runs and hands them to a Handler. Two handlers come with it: the
// Stripper (MarkupStripper.h) gives the plain text, and the Layout
// (MarkupLayout.h) breaks lines and places runs through a callback that knows
// the fonts. Nothing here measures or draws; the builders that write the
// language are in MarkupBuilders.h.
#pragma once

#include "plat/String.h"

#include <cstdint>
#include <list>

namespace plat {

class Markup {
public:
  class ParserHtml;
  class Stripper;
  class Layout;

  enum Alignment : std::int32_t {
    alignLeft = 0,
    alignCenter = 1,
    alignRight = 2,
    alignJustify = 3
  };

  struct Style {
    static constexpr std::uint32_t italic = 1u << 0;
    static constexpr std::uint32_t underline = 1u << 1;
    static constexpr std::uint32_t hyperlink = 1u << 2;
    static constexpr std::int32_t normalSize = 120;
    static constexpr std::int32_t normalWeight = 400;
    static constexpr std::int32_t boldWeight = 700;

    std::uint32_t flags_ = 0;
    /// Font size in units where 120 is the normal size.
    std::int32_t size_ = normalSize;
    /// 400 normal, 700 bold, 300 lighter.
    std::int32_t weight_ = normalWeight;
    /// CSS colour text as written, or null.
    String colour_;
    String backgroundColour_;

    bool isDefault() const noexcept { return *this == Style(); }
    friend bool operator==(const Style&, const Style&) = default;
  };

  struct Run {
    String text_;
    /// The link target; null for plain text.
    String href_;
    Style style_;
  };

  struct Paragraph {
    std::int32_t alignment_ = alignLeft;
    /// In multiples of the font height.
    float paddingRight_ = 0;
    float paddingLeft_ = 0;
    std::list<Run> runs_;
  };

  /// The sink of a parsed text.
  class Handler {
  public:
    virtual ~Handler() = default;
    virtual void beginParagraph(std::int32_t alignment, float paddingLeft, float paddingRight);
    virtual void endParagraph(bool isLast);
    virtual void text(const Style& style, const char* text);
    /// A null `text` means that the link shows its `href`.
    virtual void link(const Style& style, const char* href, const char* text) = 0;
    /// After the last paragraph.
    virtual void end();
  };

  class Parser {
  public:
    virtual ~Parser() = default;
    /// Parses `text` and delivers it to `handler`, or only validates it when
    /// `handler` is null. Invalid markup gives false and a log line; the
    /// handler then sees nothing.
    virtual bool parse(const char* text, Handler* handler) const;
    /// Appends the paragraphs of `text`; throws Exception on invalid markup.
    virtual void parseParagraphs(const char* text, std::list<Paragraph>& paragraphs) const = 0;
  };

  /// The target of links.
  class LinkCallback {
  public:
    virtual ~LinkCallback() = default;
    virtual void linkClicked(const char* url) = 0;
  };

  /// The shared HTML parser.
  static const Parser& parser();
};

} // namespace plat
