"""Pair kerning of the Rocket face, as OpenType features."""

FEATURES = """
languagesystem DFLT dflt;
languagesystem latn dflt;

@A = [A Aacute Agrave Acircumflex Adieresis Aring Atilde];
@O = [C G O Q Oacute Ograve Ocircumflex Odieresis Otilde];
@V = [V W Y Yacute];
@a = [a c d e g o q aacute agrave acircumflex adieresis aring atilde
      eacute egrave ecircumflex edieresis oacute ograve ocircumflex odieresis otilde];
@n = [m n p r s u ntilde uacute ugrave ucircumflex udieresis];
@v = [v w y yacute ydieresis];
@stop = [period comma ellipsis];
@dash = [hyphen endash emdash];
@quote = [quoteright quotedblright quotesingle quotedbl];

feature kern {
  pos @A @V -60;
  pos @A T -62;
  pos @A @O -16;
  pos @A @v -26;
  pos @A @quote -70;
  pos @V @A -60;
  pos @V @a -44;
  pos @V @n -24;
  pos @V @O -16;
  pos @V @stop -90;
  pos @V @dash -36;
  pos T @A -62;
  pos T @a -76;
  pos T @n -56;
  pos T @v -48;
  pos T @stop -96;
  pos T @dash -76;
  pos F @A -50;
  pos F @a -16;
  pos F @stop -100;
  pos P @A -52;
  pos P @stop -110;
  pos L T -76;
  pos L @V -66;
  pos L @v -36;
  pos L @quote -100;
  pos K @O -26;
  pos K @a -16;
  pos R @V -20;
  pos R T -14;
  pos X @O -20;
  pos @O @A -16;
  pos @O @V -16;
  pos O X -18;
  pos D @A -14;
  pos D @V -14;
  pos r @a -14;
  pos r @stop -76;
  pos @v @a -12;
  pos @v @stop -66;
  pos @a @v -10;
  pos f t -34;
  pos f f -34;
  pos t t -50;
  pos f @a -10;
  pos f @stop -40;
  pos k @a -18;
} kern;
"""
