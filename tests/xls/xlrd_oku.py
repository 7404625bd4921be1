"""Tells what xlrd reads in a file, one thing a line; texts as the hexadecimal digits of their UTF-8.

U text                      a warning
S name rows                 a sheet; what follows is of it
B column bold colour align  how a cell of the first row looks; 3 stands to the right
E column width              in 256ths of a digit
T row column text           a cell with a text
N row column number format  a cell with a number
? row column type           any other cell
"""
import io
import sys

import xlrd


def hexa(text):
    return text.encode("utf-8").hex() or "-"


def main(path):
    log = io.StringIO()
    book = xlrd.open_workbook(path, logfile=log, formatting_info=True)
    for line in log.getvalue().splitlines():
        print("U", hexa(line))
    for sheet in book.sheets():
        print("S", hexa(sheet.name), sheet.nrows)
        for column in range(sheet.row_len(0) if sheet.nrows else 0):
            look = book.xf_list[sheet.cell_xf_index(0, column)]
            colour = book.colour_map[look.background.pattern_colour_index] if look.background.fill_pattern == 1 else None
            print("B", column, int(book.font_list[look.font_index].weight >= 700), "%02X%02X%02X" % colour if colour else "-", look.alignment.hor_align)
        for column, info in sheet.colinfo_map.items():
            print("E", column, info.width)
        for row in range(sheet.nrows):
            for column, cell in enumerate(sheet.row(row)):
                if cell.ctype == xlrd.XL_CELL_TEXT:
                    print("T", row, column, hexa(cell.value))
                elif cell.ctype == xlrd.XL_CELL_NUMBER:
                    print("N", row, column, repr(cell.value), hexa(book.format_map[book.xf_list[cell.xf_index].format_key].format_str))
                elif cell.ctype not in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                    print("?", row, column, cell.ctype)


main(sys.argv[1])
