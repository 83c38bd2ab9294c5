VSPK 01.00 Vorel
(0:15) On its own map,
(5:2) tell {[map] by its name}
(0:16) On its own map,
(5:2) tell {[map] by its name}
(0:17) On its own map,
(5:2) tell {[map] by its name}
(0:18) On its own map,
(5:2) tell {[map] by its name}
(0:19) In any dream,
(5:2) tell {[map]}
*Endtriggers* 9999 *Endtriggers*
