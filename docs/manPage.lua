-- Turns manual.md into a manual page for terminals of 80 columns: pandoc's own output for code names
-- fonts that not every formatter knows, and its tables are wider than the page.

local pageWidth = 70 -- characters of text beside the indent
local gap = 3 -- characters between columns
local pandocWidth = 70 -- what pandoc takes for a table of width 1

local function escape(text)
    return (text:gsub("\\", "\\e"):gsub("-", "\\-"):gsub("'", "\\(aq"):gsub("`", "\\(ga")
        :gsub("%^", "\\(ha"):gsub("~", "\\(ti"):gsub('"', "\\(dq"))
end

local function bold(text)
    return pandoc.RawInline("man", "\\fB" .. text .. "\\fR")
end

local function Code(code)
    return bold(escape(code.text))
end

--- Long names may break in narrow columns, after a point, a slash, a colon, an underscore or a hyphen.
local function narrowCode(code)
    return bold((escape(code.text):gsub("([%w_:][./_:])(%w)", "%1\\:%2"):gsub("(%w\\%-)(%w)", "%1\\:%2")))
end

local function CodeBlock(block)
    local lines = {}
    for line in (block.text .. "\n"):gmatch("(.-)\n") do
        lines[#lines + 1] = "\\&" .. escape(line)
    end
    return pandoc.RawBlock("man", ".PP\n.RS 4\n.EX\n" .. table.concat(lines, "\n") .. "\n.EE\n.RE")
end

--- Columns keep their shares, which the dashes below the head of a table give.
local function Table(tbl)
    local free = pageWidth - gap * (#tbl.colspecs - 1)
    for i, column in ipairs(tbl.colspecs) do
        tbl.colspecs[i] = {column[1], (column[2] or 1 / #tbl.colspecs) * free / pandocWidth}
    end
    return pandoc.walk_block(tbl, {Code = narrowCode})
end

--- Links lead to other sections of the page.
local function Link(link)
    return link.content
end

--- Terminals show no pictures.
local function Image()
    return {}
end

--- A section begins without a paragraph macro.
local function Blocks(blocks)
    for i = 2, #blocks do
        if blocks[i - 1].t == "Header" and blocks[i].t == "Para" then
            blocks[i] = pandoc.Plain(blocks[i].content)
        end
    end
    return blocks:filter(function(block)
        return #(block.content or {1}) > 0 or block.t == "HorizontalRule"
    end)
end

return {{Table = Table}, {Code = Code, CodeBlock = CodeBlock, Image = Image, Link = Link, Blocks = Blocks}}
