#include "plat/Markup.h"

#include "plat/Exception.h"
#include "plat/LogSrc.h"
#include "plat/MarkupParserHtml.h"

namespace plat {

namespace {

LogSrc parserLog("MarkupParser");

} // namespace

void Markup::Handler::beginParagraph(std::int32_t, float, float) {}

void Markup::Handler::endParagraph(bool) {}

void Markup::Handler::text(const Style&, const char*) {}

void Markup::Handler::end() {}

// The whole text is parsed before anything is delivered, so that a handler
// never sees the first half of a text that turns out to be invalid.
bool Markup::Parser::parse(const char* text, Handler* handler) const {
  std::list<Paragraph> paragraphs;
  try {
    parseParagraphs(text, paragraphs);
  } catch (const Exception& e) {
    parserLog.error("Invalid markup (%s): ### %s ###", e.what(), text ? text : "");
    return false;
  }
  if (!handler)
    return true;
  for (auto paragraph = paragraphs.begin(); paragraph != paragraphs.end(); ++paragraph) {
    handler->beginParagraph(paragraph->alignment_, paragraph->paddingLeft_,
                            paragraph->paddingRight_);
    for (const Run& run : paragraph->runs_) {
      if (run.href_.isNull())
        handler->text(run.style_, run.text_.get());
      else
        handler->link(run.style_, run.href_.get(), run.text_.get());
    }
    handler->endParagraph(std::next(paragraph) == paragraphs.end());
  }
  handler->end();
  return true;
}

const Markup::Parser& Markup::parser() {
  static const ParserHtml shared;
  return shared;
}

} // namespace plat
