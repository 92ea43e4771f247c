(setq cadre_usery 860) ;Largeur du cadre users
(setq cadre_userx 1600) ;Longueur du cadre users
(setq cadre_couleur 2) ;Couleur du double cadre
(setq cadre_decal 5) ;Decalage en mm du double cadre
(setq cadre_layer "CADRE1") ;Nom du plan pour le cadre
(setq x_def_ounit 1) ;L'unité par défaut de l'espace objet est le cm
(setq x_def_punit 0) ;L'unité par défaut de l'espace papier est le mm
(setq x_incli 0) ;Degrés d'inclinaison des styles
(setq x_compress 0.7) ;Compression des styles de texte
(setq x_ht_gc1 3) ;Hauteur du style GC1
(setq x_ht_gc2 2.5) ;Hauteur du style GC2
(setq x_ht_gc3 3.5) ;Hauteur du style GC3
(setq x_ht_gc4 4) ;Hauteur du style GC4
(setq x_ht_gc5 5) ;Hauteur du style GC5
(setq x_ht_gc7 7) ;Hauteur du style GC7
(setq x_ht_gc10 10) ;Hauteur du style GC10
(setq x_ht_gc15 15) ;Hauteur du style GC15
(setq x_ht_gcc 3.5) ;Hauteur du style GCC
(setq x_color_gcc 4) ;Couleur du style GCC
(setq x_nom_bureau "Bureau Nord") ;Nom de votre bureau
(setq x_adresse_bureau "Adresse du bureau") ;Adresse de votre bureau
(setq x_code_bureau "N postal") ;No postal de votre bureau
(setq x_lieu_bureau "Ville") ;Nom de la ville pour votre bureau
(setq x_tel_bureau "No de téléphone") ;No de tél de votre bureau
(setq x_fax_bureau "No de fax") ;No de fax de votre bureau
(setq x_style_txt1 "ARIAL") ;Polices pour le style gc1
(setq x_style_txt2 "ROMANS") ;Polices pour le style gc2
(setq x_style_txt3 "ROMANS") ;Polices pour le style gc3
(setq x_style_txt4 "ROMANS") ;Polices pour le style gc4
(setq x_style_txt5 "ROMANS") ;Polices pour le style gc5
(setq x_style_txt7 "ROMANS") ;Polices pour le style gc7
(setq x_style_txt10 "ROMANS") ;Polices pour le style gc10
(setq x_style_txt15 "ROMANS") ;Polices pour le style gc15
(setq x_style_cot "STANDARD") ;Polices pour le style cote
(setq x_color_zm10 1) ;Couleur par défaut Zmult 1:10
(setq x_color_zm20 2) ;Couleur par défaut Zmult 1:20
(setq x_color_zm50 3) ;Couleur par défaut Zmult 1:50
(setq x_color_zm100 4) ;Couleur par défaut Zmult 1:100
(setq x_color_zm200 5) ;Couleur par défaut Zmult 1:200
(setq x_color_zm500 6) ;Couleur par défaut Zmult 1:500
(setq x_chttt 2) ;Commande Autocad aprés choix du style - Texte dynamique
(setq x_lang "FRA"); Langue français 
(setq affilogoKVO 1) ;Affichage du logo Zorel lors du chagement des modules - Actif
(setq affiprofil 1) ;Affichage du profil dessin - Actif
(setq x_chtlay 1) ;Layers à utiliser après l'appel de la commande - Layers courant
(setq path_win1 "C:\\WINNT\\EXPLORER.EXE") ;Emplacement de l'explorateur Windows
(setq path_win2 "C:\\WINNT\\SYSTEM32\\CALC.EXE") ;Emplacement de la machine à calculer
(setq path_win3 "C:\\PROGRAM FILES\\WINDOWS NT\\ACCESSOIRES\\WORDPAD.EXE") ;Emplacement de l'éditeur WordPad
(setq path_win4 "C:\\WINNT\\NOTEPAD.EXE") ;Emplacement du bloc-notes
(setq path_win6 "C:\\PROGRAM FILES\\ADOBE\\ACROBAT\\READER.EXE") ;Emplacement d'acrobat reader
(setq path_win5 "") ;Emplacement d'un programme personnel
