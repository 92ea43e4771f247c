(setq QZ_asp_dess "polyligne") ;Choix du dessin final (polyligne ou points)
(setq QZ_des_tal 2) ;Type de dessin du talus (2 ou 3 pour 2d ou 3d)
(setq QZ_tal_dh 9) ;Talus dist horiz
(setq QZ_tal_dv 2) ;Talus dist vert
(setq QZ_tal_max 20) ;Long initial du talus
(setq QZ_rech_360 360) ;Nbr de rech pour 360 degres
(setq QZ_ecart_pts 1) ;Ecart entre les recherches
(setq QZ_fact_flch 6) ;Facteur d'échelle des flèches de direction
