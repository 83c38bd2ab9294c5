VSPK 01.00 Vorel
(0:0) loaded,
*Endtriggers* 9999 *Endtriggers*
