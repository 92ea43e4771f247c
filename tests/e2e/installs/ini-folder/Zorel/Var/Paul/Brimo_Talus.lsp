(setq QZ_tal_dh 7)
